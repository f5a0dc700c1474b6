#include "editors/catalogue/CellContent.h"

#include "editors/NumericBox.h"

#include <QLocale>

using namespace Qt::StringLiterals;

QString reasonAgainst(CellContent content, const QString& text)
{
    using Takes = NumericBox::Takes;
    if (content == CellContent::Limit && text.isEmpty()) {
        return u"A price is missing: a discount by product price needs both."_s;
    }
    const bool isInUsersForm = content == CellContent::Number;
    if (content == CellContent::Text ||
        NumericBox::accepts(isInUsersForm ? Takes::Number : Takes::NormalisedNumber, text)) {
        return {};
    }
    const QString example = isInUsersForm ? QLocale().toString(12.5, 'f', 2) : u"12.50 or 12,50"_s;
    return u"This is not a number. Write it like %1."_s.arg(example);
}
