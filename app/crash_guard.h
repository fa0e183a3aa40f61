/// \file
/// Keeps the program alive when a top-level handler throws.
#pragma once

#include <QString>
#include <exception>
#include <functional>

/// The error line for an exception that came out of \p function.
/// \param exception nullptr for one that is no std::exception
QString crashGuardText(const QString &function, const std::exception *exception);

/// Runs \p work. An exception ends it, is given to \p logError as one line, and goes no further.
/// \return whether \p work came to its end
template<class Work>
bool crashGuarded(const QString &function, const std::function<void(const QString &)> &logError, Work &&work)
{
    try {
        work();
        return true;
    } catch (const std::exception &exception) {
        logError(crashGuardText(function, &exception));
    } catch (...) {
        logError(crashGuardText(function, nullptr));
    }
    return false;
}
