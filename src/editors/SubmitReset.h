// The row of the two buttons that a panel ends with: Submit writes its fields to the object, Reset brings back what the
// object holds. A panel owns it.
#pragma once

#include <QPushButton>

class PanelHost;

class SubmitReset : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it.
    SubmitReset(PanelHost& host, QWidget* parent);

    QPushButton* imgButtonSubmit;
    QPushButton* imgButtonReset;
};
