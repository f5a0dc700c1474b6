// A flat shipping charge by destination. The shop owns the list.
#pragma once

#include <QString>

class clsCharge
{
public:
    QString Destination;
    QString Cost; // as entered
    bool IsChecked = false;

    // IsChecked as "Y" or "N". Any other text that is set leaves it as it was.
    QString IsCheckedString() const;
    void setIsCheckedString(const QString& text);
};

// What clsTax and clsCharge make of their switch.
QString flagText(bool isChecked);
void setFlag(bool& isChecked, const QString& text);
