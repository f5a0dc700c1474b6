#include "model/CommonFunctions.h"

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/UserPrompts.h"
#include "model/ProductClass.h"
#include "model/clsCart.h"

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// A run of digits as a number; nothing when a character is no digit.
std::optional<int> digitsOnly(QStringView text)
{
    int number = 0;
    for (const QChar letter : text) {
        if (letter < u'0' || letter > u'9') {
            return {};
        }
        number = number * 10 + (letter.unicode() - u'0');
    }
    return number;
}

double numberOrZero(const QString& text)
{
    return text.isEmpty() ? 0 : numberFromText(text);
}

struct StatusWord
{
    int number;
    QString word;
};

const std::array<StatusWord, 5>& statusWords()
{
    static const std::array<StatusWord, 5> words = {{
        {DiscountStatus::No, u"No"_s},
        {DiscountStatus::ToAll, u"ToAll"_s},
        {DiscountStatus::Depend, u"Depend"_s},
        {DiscountStatus::Inherit, u"Inherit"_s},
        {DiscountStatus::Specific, u"Specific"_s},
    }};
    return words;
}

} // namespace

QString NormalizeDecimal(const QString& text)
{
    if (!text.contains(u'.') && !text.contains(u',')) {
        return text;
    }
    const QString separator = decimalSeparator();
    QString normalised = text;
    if (separator == u"."_s) {
        normalised.replace(u',', u'.');
    } else if (separator == u","_s) {
        normalised.replace(u'.', u',');
    }
    return normalised;
}

// The date is reached in steps from the first day of the calendar, and each step clips a day that its month does not
// have: February of 1900, where the month step lands, has 28 days, so that 29.02.2004 reads as 28 February. This is
// meant.
QString DateTextToLocal(const QString& text)
{
    if (text.size() < 5) {
        return {};
    }
    const std::optional<int> day = digitsOnly(QStringView(text).first(2));
    const std::optional<int> month = digitsOnly(QStringView(text).sliced(3, 2));
    const std::optional<int> year = digitsOnly(QStringView(text).last(4));
    if (!day || !month || !year) {
        return {};
    }
    const QDate date = QDate(1899, 12, 30).addDays(*day + 1).addMonths(*month - 1).addYears(*year - 1900);
    const bool hasText = date.isValid() && date.year() >= 100 && date.year() <= 9999;
    return hasText ? localDateText(date) : QString();
}

QString localToDateText(const QString& text)
{
    return text.isEmpty() ? QString() : shopFileDateText(dateFromLocalText(text));
}

bool dateIsBetween(const QDate& day, const QString& dateFrom, const QString& dateTo)
{
    const QDate first = dateFrom.isEmpty() ? QDate(1900, 1, 1) : dateFromLocalText(dateFrom);
    const QDate last = dateTo.isEmpty() ? QDate(5100, 1, 1) : dateFromLocalText(dateTo);
    return first <= day && day <= last;
}

QString CalculateNewPrice(const QString& price, const QString& percent)
{
    const double p = numberOrZero(percent);
    const double v = numberOrZero(price);
    const double n = (1 - p / 100) * v;
    const double r = p != 0 ? n : v;
    if (!std::isfinite(r)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return numberToText(numberFromText(formatTwoDecimals(r)));
}

int StatusFromWord(const QString& word)
{
    for (const StatusWord& row : statusWords()) {
        if (row.word == word) {
            return row.number;
        }
    }
    throw RuntimeError(ErrorNumber::InvalidUseOfNull);
}

QString StatusToWord(int number)
{
    for (const StatusWord& row : statusWords()) {
        if (row.number == number) {
            return row.word;
        }
    }
    throw RuntimeError(ErrorNumber::InvalidUseOfNull);
}

std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product)
{
    auto copy = std::make_shared<ProductClass>(product.services());
    copy->setPrice(product.Price()->CreateClone());
    copy->id = product.id;
    copy->Code = product.Code;
    copy->Description = product.Description;
    copy->LINK = product.LINK;
    copy->name = product.name;
    copy->Picture = product.Picture;
    copy->related = product.related;
    copy->setShippingCosts(product.ShippingCosts());
    copy->ShippingStatus = product.ShippingStatus;
    copy->shop = product.shop;
    copy->setTaxes(product.Taxes());
    copy->Unit = product.Unit;
    copy->Weight = product.Weight;
    copy->setSelectedImage(product.selectedImage());
    return copy;
}

bool ConfirmEmptyCart(clsCart* cart, UserPrompts& prompts)
{
    if (cart == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    if (cart->Count() == 0) {
        return true;
    }
    const bool agreed =
        prompts.askYesNo(u"Your shopping cart isn't empty"_s, u"Do you want make changs and empty cart?\r\n\r\n"
                                                              "YES - cart will be emptied\r\n"
                                                              "NO - changing will be impossible"_s);
    if (agreed) {
        cart->Clear();
    }
    return agreed;
}
