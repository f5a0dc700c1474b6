#include "model/clsCharge.h"

using namespace Qt::StringLiterals;

QString clsCharge::IsCheckedString() const
{
    return FlagText(IsChecked);
}

void clsCharge::setIsCheckedString(const QString& text)
{
    SetFlag(IsChecked, text);
}

QString FlagText(bool isChecked)
{
    return isChecked ? u"Y"_s : u"N"_s;
}

void SetFlag(bool& isChecked, const QString& text)
{
    if (text == "Y"_L1) {
        isChecked = true;
    } else if (text == "N"_L1) {
        isChecked = false;
    }
}
