/// \file
/// What is said when a top-level handler throws; the handler ends, and the program goes on.
#pragma once

#include <QString>
#include <exception>

/// The error line for an exception that came out of \p function.
/// \param exception nullptr for one that is no std::exception
QString crashGuardText(const QString &function, const std::exception *exception);
