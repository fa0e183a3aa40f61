/// \file
/// The sentences of readers and writers of tags. They stand in the program's source language and are not
/// translated: they reach people only inside reports.
#pragma once

#include <string>

inline constexpr const char *errorNotOpened = "打不开文件";
inline constexpr const char *errorShortRead = "读不满(文件被改过?)";

/// Always false, so that a reader can fail in one line.
inline bool failRead(std::string *error, const char *text)
{
    if (error)
        *error = text;
    return false;
}
