#include "model/clsTax.h"

#include "base/Numbers.h"
#include "model/clsCharge.h"

QString clsTax::Percent() const
{
    return NormalizeDecimal(m_percent);
}

QString clsTax::IsCheckedString() const
{
    return flagText(IsChecked);
}

void clsTax::setIsCheckedString(const QString& text)
{
    setFlag(IsChecked, text);
}
