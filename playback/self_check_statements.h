/// \file
/// The three statements of a self-check, which are never merged: a lossless source, an unchanged path, a
/// verified delivery.
#pragma once

#include "playback/verify_lines.h"

#include <QList>
#include <QString>
#include <array>

enum class CheckMark
{
    Pending,    ///< the engine has not answered yet
    Proved,     ///< tick
    Disproved,  ///< cross
    NotProvable ///< dash; not a pass
};

struct CheckStatement
{
    CheckMark mark = CheckMark::Pending;
    QString head;     ///< translated
    QString sentence; ///< translated
    QString evidence; ///< the engine's words

    bool operator==(const CheckStatement &) const = default;
};

/// Which of the three an item speaks to. A stage that is not known by name belongs to the path.
enum class CheckTopic
{
    Source,
    Path,
    Delivery
};
CheckTopic checkTopicOf(const VerifyItem &item);

/// \param finished the verdict has come: what has no item by now gets none
std::array<CheckStatement, 3> checkStatements(const QList<VerifyItem> &items, bool finished);

/// "The first stage that broke it: …" in one sentence; what is only not known counts behind what is broken.
/// Empty when every item passed.
QString firstBreakSentence(const QList<VerifyItem> &items);
