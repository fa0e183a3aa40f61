/// \file
/// The signal-chain reports of the engine as they came, with a button that saves them.
#pragma once

#include <QDialog>
#include <QStringList>

class QPlainTextEdit;

/// Stores nothing itself: what to do about its buttons is the window's matter. Object names: vesperReport
/// (the view), vesperReportSave.
class ReportDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ReportDialog(QWidget *parent = nullptr);

    /// Appends a block; lines that would stand as a warning in the panel are printed red.
    void append(const QStringList &lines);
    /// All that is shown, as it came: rich text would join runs of blanks.
    const QStringList &lines() const { return m_lines; }

Q_SIGNALS:
    void saveRequested();
    /// The engine is to be asked once more.
    void refreshRequested();

private:
    QPlainTextEdit *m_view;
    QStringList m_lines; ///< the newest, as many as the view holds
};
