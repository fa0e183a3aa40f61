/// \file
/// The lines in which the engine answers a self-check.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

/// One stage's answer.
struct VerifyItem
{
    QString name;
    QString explanation; ///< the engine's words
    bool passed = false;

    /// The stage could show neither; that is no pass.
    bool notKnown() const;
    bool operator==(const VerifyItem &) const = default;
};

struct VerifyVerdict
{
    QString line;         ///< all behind "verdict "
    QString firstSection; ///< of it, up to " | "
    bool passed = false;

    /// What stands behind the first section: why, in the engine's words. May be empty.
    QString reason() const;
    bool operator==(const VerifyVerdict &) const = default;
};

struct VerifyLine
{
    std::optional<VerifyVerdict> verdict;
    std::optional<VerifyItem> item; ///< exactly one of both is set
};

/// \param text begins with "verify: "; nothing for any other
std::optional<VerifyLine> parseVerifyLine(QStringView text);
