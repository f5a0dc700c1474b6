#include "model/clsCharge.h"

using namespace Qt::StringLiterals;

QString clsCharge::IsCheckedString() const
{
    return flagText(IsChecked);
}

void clsCharge::setIsCheckedString(const QString& text)
{
    setFlag(IsChecked, text);
}

QString flagText(bool isChecked)
{
    return isChecked ? u"Y"_s : u"N"_s;
}

void setFlag(bool& isChecked, const QString& text)
{
    if (text == "Y"_L1) {
        isChecked = true;
    } else if (text == "N"_L1) {
        isChecked = false;
    }
}
