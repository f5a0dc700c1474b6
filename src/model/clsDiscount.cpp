#include "model/clsDiscount.h"

#include "base/Circumstances.h"
#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

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

int StatusFromWord(const QString& word)
{
    for (const StatusWord& row : statusWords()) {
        if (row.word == word) {
            return row.number;
        }
    }
    throw RuntimeError(ErrorNumber::InvalidUseOfNull).because(inQuotes(word) + " is no word for a discount."_L1);
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

clsDiscount::clsDiscount(const Clock& clock) : m_clock(&clock) {}

QString clsDiscount::Specific() const
{
    return NormalizeDecimal(m_specific);
}

QString clsDiscount::ApplyToWhole() const
{
    return NormalizeDecimal(m_applyToWhole);
}

const std::shared_ptr<clsDependedDiscounts>& clsDiscount::DependedDiscounts()
{
    if (!m_dependedDiscounts) {
        m_dependedDiscounts = std::make_shared<clsDependedDiscounts>();
    }
    return m_dependedDiscounts;
}

void clsDiscount::setDependedDiscounts(std::shared_ptr<clsDependedDiscounts> bands)
{
    m_dependedDiscounts = std::move(bands);
}

const KeyedCollection<std::shared_ptr<clsDiscount>>& clsDiscount::Childs() const
{
    static const Children none;
    return m_childs ? *m_childs : none;
}

void clsDiscount::AddChildDiscount(const std::shared_ptr<clsDiscount>& child, const QString& key)
{
    if (!m_childs) {
        m_childs = std::make_unique<Children>();
    }
    m_childs->Add(child, key);
}

void clsDiscount::RemoveChildDiscount(const QString& key)
{
    if (!m_childs) {
        m_childs = std::make_unique<Children>();
    }
    m_childs->Remove(key);
}

void clsDiscount::setParentDiscount(const std::shared_ptr<clsDiscount>& parent)
{
    m_parentDiscount = parent;
    for (const std::shared_ptr<clsDiscount>& child : Childs()) {
        child->setParentDiscount(shared_from_this());
    }
}

bool clsDiscount::isOpen(const QString& dateFrom, const QString& dateTo) const
{
    // Most have no dates, and asking the clock costs more than all else on a page of products.
    return (dateFrom.isEmpty() && dateTo.isEmpty()) || dateIsBetween(m_clock->today(), dateFrom, dateTo);
}

QString clsDiscount::Value(const QString& price) const
{
    const bool isValid = isOpen(DateFrom, DateTo);
    if (Status == DiscountStatus::Specific) {
        return isValid ? Specific() : QString();
    }
    if (Status == DiscountStatus::Inherit) {
        return ParentDependDiscounts ? bandFor(price) : Inherit; // the dates had their say when it was sent
    }
    return {}; // "ToAll" and "Depend" act on the levels below only
}

// The first band around the price wins. Both limits are deliberately exclusive.
QString clsDiscount::bandFor(const QString& price) const
{
    const auto failing = [] {
        return u"A discount by bands of prices needs a price, and two limits in every row of its bands."_s;
    };
    for (const clsDependedDiscount& band : *ParentDependDiscounts) {
        const bool isInBand = during(failing, [&] {
            const double number = numberFromText(price);
            const double from = numberFromText(band.PriceFrom());
            const double to = numberFromText(band.PriceTo());
            return from < number && number < to;
        });
        if (isInBand) {
            return band.Value();
        }
    }
    return {};
}

void clsDiscount::SendDiscountToChilds(const QString& dateFrom, const QString& dateTo)
{
    push(hasOwnDates() || isOpen(dateFrom, dateTo));
}

// Dates are tested once where they come into force, and the answer is handed down: a level without dates of its own is
// under those of the level above.
void clsDiscount::push(bool isValidAbove)
{
    const bool isValid = hasOwnDates() ? isOpen(DateFrom, DateTo) : isValidAbove;
    const QString sent = sentPercentage(isValid);
    for (const std::shared_ptr<clsDiscount>& child : Childs()) {
        sendTo(*child, sent, isValid);
        child->m_parentDiscount = weak_from_this(); // what lies below the child gets its parent when the child pushes
        child->push(isValid);
    }
}

// What this level makes the percentage of those below; of no use for the two statuses that leave it.
QString clsDiscount::sentPercentage(bool isValid) const
{
    if (!isValid) {
        return {};
    }
    return Status == DiscountStatus::ToAll ? ApplyToWhole() : Status == DiscountStatus::Inherit ? Inherit : QString();
}

void clsDiscount::sendTo(clsDiscount& child, const QString& percentage, bool isValid)
{
    child.ParentDependDiscounts = nullptr;
    switch (Status) {
    case DiscountStatus::ToAll:
    case DiscountStatus::No:
        child.Inherit = percentage;
        break;
    case DiscountStatus::Inherit:
        child.Inherit = percentage;
        child.ParentDependDiscounts = isValid ? ParentDependDiscounts : nullptr;
        break;
    case DiscountStatus::Depend:
        // The child's percentage stays: it deliberately shows again when there are no bands.
        if (isValid && m_dependedDiscounts && m_dependedDiscounts->Count() > 0) {
            child.ParentDependDiscounts = m_dependedDiscounts;
        }
        break;
    default: // "Specific" sends nothing, and the child deliberately keeps what it had
        break;
    }
}

std::shared_ptr<clsDiscount> clsDiscount::CreateClone() const
{
    auto clone = std::make_shared<clsDiscount>(*m_clock);
    clone->DateFrom = DateFrom;
    clone->DateTo = DateTo;
    clone->Inherit = Inherit;
    clone->m_specific = Specific();
    clone->Status = Status;
    return clone;
}
