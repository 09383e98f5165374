// Logger before Initialize. Its own program, because the state under test
// exists only until the first Initialize of the process.
#include "log.h"
#include "log_test_util.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using namespace logtest;

namespace {

// Early messages go to standard error with a time stamp under the default
// threshold 4, even though the sink type says standard output.
TEST(LoggerBeforeInitialize, ErrorsAndWarningsGoToStandardErrorOnly)
{
    fs::path dir = MakeTempDir("logger_startup_test");
    ASSERT_FALSE(dir.empty());
    {
        CaptureFd out(1, dir / "stdout");
        CaptureFd err(2, dir / "stderr");
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level) {
            Log(static_cast<Logger::Level>(level), "launcher_debug", "level " + std::to_string(level));
        }
        const std::string stdout_text = out.Finish();
        const std::string stderr_text = err.Finish();
        EXPECT_EQ("", stdout_text);
        EXPECT_EQ(std::vector<std::string>({Text(Logger::LEVEL_ERROR, "level 3"),
                                            Text(Logger::LEVEL_WARNING, "level 4")}),
                  Unstamped(stderr_text));
    }
    if (!::testing::Test::HasFailure()) {
        fs::remove_all(dir);
    }
}

}  // namespace
