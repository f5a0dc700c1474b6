// The two buttons that the dialogs of the design end with, in a row with OkBtn as the default. The dialog connects
// them.
#pragma once

#include <QHBoxLayout>
#include <QPushButton>

struct DialogButtons
{
    QHBoxLayout* row; // to be put into the dialog's layout
    QPushButton* OkBtn;
    QPushButton* CancelBtn;
};

DialogButtons makeDialogButtons(QWidget* parent);
