// Extractor::Count and Extract on an arbitrary archive. Its links may lead
// anywhere, so scripts/fuzz runs this confined.
#include "extractor.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzFile file(data, size);
    Extractor extractor;
    extractor.archivePath = file.path.c_str();
    extractor.destination = (file.dir + "/Nimbulo.app").c_str();
    const int count = extractor.Count(), rc = extractor.Extract();
    FUZZ_CHECK(count >= -1 && (rc == 0 || rc == -1) && (rc == -1 || count > 0));
    return 0;
}
