/// \file
/// The settings that have no place of their own in the window, section by section.
#pragma once

#include <QDialog>

class QVBoxLayout;

/// Built when it is first opened. Stores nothing: each section reports to the window.
class SetupDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit SetupDialog(QWidget *parent = nullptr);

    /// \param section becomes a child of the dialog
    void addSection(const QString &title, QWidget *section);

protected:
    void showEvent(QShowEvent *event) override;
    /// A wheel over a control that has not the focus scrolls the page: no setting changes by scrolling past
    /// it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVBoxLayout *m_sections;
};
