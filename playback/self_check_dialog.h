/// \file
/// The bit-perfect self-check: the verdict, three statements, and every stage's answer.
#pragma once

#include "playback/self_check_statements.h"

#include <QColor>
#include <QDialog>
#include <array>

class CheckStatementView;
class QFrame;
class QLabel;
class QListWidget;

/// The colours of the list's verdict, which no style sheet reaches.
struct SelfCheckColors
{
    QColor passed{120, 200, 140};
    QColor failed{208, 138, 90};
    QColor plate; ///< behind the verdict; invalid where the list itself is dark
};

/// Shows what it is told; asks nobody. Object names: vesperCheckPlate (property "passed" once there is a
/// verdict), vesperCheckVerdict (the same), vesperCheckAbout, vesperCheckExplain, vesperCheckBreak,
/// vesperCheckList.
class SelfCheckDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit SelfCheckDialog(QWidget *parent = nullptr);

    void setColors(const SelfCheckColors &colors) { m_colors = colors; }
    /// Empties everything for a new check.
    /// \param about track, device and time that the check is for
    void begin(const QString &about);
    void addItem(const VerifyItem &item, const QList<VerifyItem> &all);
    void showVerdict(const VerifyVerdict &verdict, const QList<VerifyItem> &all);
    QListWidget *list() const { return m_list; }

Q_SIGNALS:
    void saveRequested();

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// As high as its words need in this language, within the screen.
    void growToWords();
    void showStatements(const QList<VerifyItem> &items, bool finished);

    SelfCheckColors m_colors;
    QFrame *m_plate;
    QLabel *m_verdict;
    QLabel *m_about;
    std::array<CheckStatementView *, 3> m_statements{};
    QLabel *m_break;
    QListWidget *m_list;
    bool m_finished = false;
};

/// The verdict as the first row of the list tells it; translated but for the engine's words.
QString verdictRowText(const VerifyVerdict &verdict);

/// "✓ name — explanation".
QString verifyItemText(const VerifyItem &item);
