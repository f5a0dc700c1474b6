// A tax of the shop: a name, a percentage, and whether it is in use. The shop owns the list.
#pragma once

#include <QString>

class clsTax
{
public:
    QString TaxName;
    bool IsChecked = false;

    // A number text, read in the user's decimal form, whatever form it was stored in.
    QString Percent() const;
    void setPercent(const QString& text) { m_percent = text; }

    // IsChecked as "Y" or "N". Any other text that is set leaves it as it was.
    QString IsCheckedString() const;
    void setIsCheckedString(const QString& text);

private:
    QString m_percent;
};
