#pragma once

#include <string>

namespace kelp_test {

/// A folder of a test's own, removed with all it holds at the end.
class TempDir
{
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir &) = delete;
    TempDir &operator=(const TempDir &) = delete;

    const std::string &path() const { return path_; }
    /// The full path of a name in the folder.
    std::string file(const std::string &name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

} // namespace kelp_test
