// spk-check: checks a package the way the launcher will read it.
//
//   spk-check <package> <bundle INFO>
//
// The package is listed and installed into a scratch folder with the
// launcher's own Extractor, so a package that passes is one the launcher can
// install. It must hold the client executable and the version file, the
// version file as its last entry (an interrupted installation must not look
// current), and its version file must carry the same four numbers as the
// bundle's. Prints "entries=N" and exits 0, or explains and exits 1.
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <QDir>
#include <QSettings>
#include <QString>

#include "extractor.h"

namespace {

const char* const kClientPath = "Contents/MacOS/nimbulo-pelora-ui";
const char* const kVersionPath = "Contents/Resources/INFO";
const char* const kKeys[] = {"major_version", "minor_version", "build_version", "icon_overlay_version"};

int Fail(const std::string& why)
{
    fprintf(stderr, "spk-check: %s\n", why.c_str());
    return 1;
}

// The four values as the service reads them; a missing key reads as "".
std::vector<std::string> ReadVersion(const std::string& path)
{
    QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
    settings.beginGroup("Version");
    std::vector<std::string> values;
    for (const char* key : kKeys)
        values.push_back(settings.value(key).toString().toStdString());
    return values;
}

std::string Joined(const std::vector<std::string>& values)
{
    std::string text;
    for (const std::string& v : values)
        text += (text.empty() ? "" : ".") + (v.empty() ? std::string("?") : v);
    return text;
}

std::vector<std::string> ListEntries(Extractor& extractor)
{
    std::ostringstream captured;
    std::streambuf* old = std::cout.rdbuf(captured.rdbuf());
    extractor.List();
    std::cout.rdbuf(old);
    std::vector<std::string> names;
    std::istringstream lines(captured.str());
    for (std::string line; std::getline(lines, line);)
        names.push_back(line);
    return names;
}

int Check(Extractor& extractor, const std::string& scratch, const std::string& bundleInfo)
{
    const int count = extractor.Count();
    if (count < 1)
        return Fail("the package cannot be read or is empty");
    const std::vector<std::string> names = ListEntries(extractor);
    bool hasClient = false;
    for (const std::string& name : names)
        hasClient = hasClient || name == kClientPath;
    if (!hasClient)
        return Fail(std::string("the package lacks ") + kClientPath);
    if (names.empty() || names.back() != kVersionPath)
        return Fail(std::string("the last entry is '") + (names.empty() ? "" : names.back()) + "', not " +
                    kVersionPath);
    if (extractor.Extract() != 0)
        return Fail("the launcher's extractor could not install the package");
    if (access((scratch + "/" + kClientPath).c_str(), X_OK) != 0)
        return Fail("the installed client is not executable");

    const std::vector<std::string> packaged = ReadVersion(scratch + "/" + kVersionPath);
    const std::vector<std::string> shipped = ReadVersion(bundleInfo);
    for (const std::string& v : shipped) {
        if (v.empty())
            return Fail("the bundle's INFO lacks a version key: " + Joined(shipped));
    }
    if (packaged != shipped)
        return Fail("the package's INFO says " + Joined(packaged) + ", the bundle's " + Joined(shipped));
    printf("entries=%d\n", count);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: spk-check <package> <bundle INFO>\n");
        return 2;
    }
    char scratch[] = "/tmp/spk-check.XXXXXX";
    if (mkdtemp(scratch) == nullptr)
        return Fail("cannot create a scratch folder in /tmp");
    Extractor extractor;
    extractor.archivePath = argv[1];
    extractor.destination = scratch;
    const int ret = Check(extractor, scratch, argv[2]);
    QDir(scratch).removeRecursively();
    return ret;
}
