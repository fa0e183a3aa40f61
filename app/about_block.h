/// \file
/// The About texts: third-party notices and the standards that the program follows.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QWidget>

/// Five widgets, all hidden until the settings dialog shows them in its own frame; its texts are read from
/// the resources when it is first shown.
class AboutBlock final : public QWidget
{
    Q_OBJECT

public:
    explicit AboutBlock(QWidget *parent);

    /// The document's resource for a language.
    static QString noticesPath(const QString &language);
    static QString referencesPath(const QString &language);

Q_SIGNALS:
    void updateCheckRequested();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *m_row;          ///< one row: name and value of the status
    QLabel *m_value;         ///< the status text
    QTextBrowser *m_browser; ///< notices and references
    QPushButton *m_checkNow; ///< manual update check
    bool m_loaded = false;
};
