// What only the file library's tests need beyond the shared test helpers.
#pragma once

#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>

#include "log.h"
#include "test_rows.h"
#include "test_support.h"

namespace filetest {

using namespace testsupport;

inline bool MakeLink(const std::string& target, const std::string& link)
{
    return symlink(target.c_str(), link.c_str()) == 0;
}

// A fresh folder, named by its real path (canonical paths are compared with
// it) and open to children run as nobody. The file module logs at its most
// verbose, so that every message is formatted, into a folder beside it: the
// tree holds only what the test made.
class FileTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        root_ = std::filesystem::canonical(tmp_.path());
        ASSERT_TRUE(chmod(root_.c_str(), 0755) == 0 && WriteFile(logs_ / "levels", "file_op_debug=7\n"));
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, (logs_ / "test.log").c_str(),
                                        (logs_ / "levels").c_str(), 50));
    }
    void TearDown() override { Logger::Destroy(); }

    std::string P(const std::string& relative) const { return root_ + "/" + relative; }

    testsupport::TempDir tmp_{"calderix-file"}, logs_{"calderix-file-log"};
    std::string root_;
};

} // namespace filetest
