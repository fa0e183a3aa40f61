#include "tags/file_range.h"

#include "platform/file_reader.h"
#include "tags/read_error.h"

bool readFileRange(const std::string &path, uint64_t offset, uint64_t length, std::vector<uint8_t> &bytes,
                   std::string *error)
{
    bytes.clear();
    const FileReader file(path);
    if (!file.isOpen())
        return failRead(error, errorNotOpened);
    // Before any memory is taken: the length may come from a damaged header.
    if (offset > file.size() || length > file.size() - offset)
        return failRead(error, errorShortRead);
    bytes.resize(static_cast<size_t>(length));
    if (file.readAt(offset, bytes) == bytes.size())
        return true;
    bytes.clear();
    return failRead(error, errorShortRead);
}
