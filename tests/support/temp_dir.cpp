#include "tests/support/temp_dir.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace kelp_test {

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kelp-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        std::perror("cannot make a temporary folder");
        std::abort();
    }
    path_ = pattern;
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace kelp_test
