/// \file
/// The three statements of the self-check, drawn.
#pragma once

#include "playback/self_check_statements.h"

#include <QFrame>
#include <QLabel>

/// A tick, a cross or a dash in a ring, in the colour that the style sheet gives it. Object name
/// vesperCheckMark, property "mark": pending, proved, disproved, unproved.
class CheckMarkView final : public QLabel
{
    Q_OBJECT

public:
    explicit CheckMarkView(QWidget *parent = nullptr);
    void setMark(CheckMark mark);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CheckMark m_mark = CheckMark::Pending;
};

/// One statement: mark, head, sentence, evidence. Object names: vesperCheckStatement (this), vesperCheckHead,
/// vesperCheckText, vesperCheckEvidence.
class CheckStatementView final : public QFrame
{
    Q_OBJECT

public:
    explicit CheckStatementView(QWidget *parent = nullptr);
    void show(const CheckStatement &statement);

private:
    CheckMarkView *m_mark;
    QLabel *m_head;
    QLabel *m_sentence;
    QLabel *m_evidence;
};
