/// \file
/// The words and numbers of a text line. Nothing here depends on the locale.
#pragma once

#include <QStringView>
#include <QVarLengthArray>
#include <optional>

/// Views into the text they were cut from, which must outlive them.
using LineWords = QVarLengthArray<QStringView, 8>;

/// Cuts at blanks, carriage returns and newlines; empty parts are skipped.
/// \param most words beyond this many are not looked at, so that an endless line costs nothing
LineWords wordsOf(QStringView text, qsizetype most = 8);

/// A whole word that is a finite decimal number. "nan" and "inf" are none.
std::optional<double> finiteNumber(QStringView word);
/// A whole word that is a decimal integer.
std::optional<int> wholeNumber(QStringView word);
/// The decimal digits the text begins with, as a number; none without a digit or beyond an int.
std::optional<int> leadingDigits(QStringView text);
