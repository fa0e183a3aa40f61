#include "ui/window/window_options.h"

#include <QFileDialog>

QString askSavePath(QWidget *parent, const QString &title, const QString &proposal)
{
    return QFileDialog::getSaveFileName(parent, title, proposal);
}
