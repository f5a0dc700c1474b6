// The discount of one level of the catalogue: the shop, a category, or a product's price. The levels form a tree
// through Childs. A product's percentage is not looked up along the tree: SendDiscountToChilds pushes each level's
// result into the level below, and Value then reads only what arrived there. Shared by its level and by the list of the
// level above.
#pragma once

#include "base/Clock.h"
#include "base/KeyedCollection.h"
#include "model/clsDependedDiscounts.h"

#include <QString>

#include <memory>

// What a level does with the discount, as the number that clsDiscount::Status holds.
namespace DiscountStatus {
inline constexpr int No = 1;       // no discount; the levels below get none
inline constexpr int ToAll = 2;    // one percentage for everything below
inline constexpr int Depend = 3;   // bands by price for everything below
inline constexpr int Inherit = 4;  // take and hand on what the level above sent
inline constexpr int Specific = 5; // this level's own percentage; hands nothing on
} // namespace DiscountStatus

// A status as its word in the shop file, and back: "No", "ToAll", "Depend", "Inherit", "Specific", exact case.
// ErrorNumber::InvalidUseOfNull for any other word or number.
int StatusFromWord(const QString& word);
QString StatusToWord(int number);

class clsDiscount : public std::enable_shared_from_this<clsDiscount>
{
public:
    explicit clsDiscount(const Clock& clock);

    // Local date texts; empty means open.
    QString DateFrom;
    QString DateTo;
    int Status = 0;       // a DiscountStatus; 0 until it is set
    int ParentStatus = 0; // nothing reads it
    // What the level above sent: a percentage, or bands.
    QString Inherit;
    std::shared_ptr<const clsDependedDiscounts> ParentDependDiscounts;

    // Percentages as number texts, read in the user's decimal form: of this level itself, and for everything below.
    QString Specific() const;
    void setSpecific(const QString& text) { m_specific = text; }
    QString ApplyToWhole() const;
    void setApplyToWhole(const QString& text) { m_applyToWhole = text; }

    // This level's own bands, made on first use.
    const std::shared_ptr<clsDependedDiscounts>& DependedDiscounts();
    void setDependedDiscounts(std::shared_ptr<clsDependedDiscounts> bands);

    // The discounts below, under the ids of their nodes (no prefix).
    const KeyedCollection<std::shared_ptr<clsDiscount>>& Childs() const;
    // ErrorNumber::DuplicateKey when the key is there already.
    void AddChildDiscount(const std::shared_ptr<clsDiscount>& child, const QString& key);
    // ErrorNumber::InvalidArgument when the key is missing.
    void RemoveChildDiscount(const QString& key);

    // The discount above; none when there is none or it is gone. Setting it also makes this discount the parent of each
    // child, and so on down.
    std::shared_ptr<clsDiscount> ParentDiscount() const { return m_parentDiscount.lock(); }
    void setParentDiscount(const std::shared_ptr<clsDiscount>& parent);

    // The percentage for a price (a number text); the empty text when no discount applies. ErrorNumber::TypeMismatch
    // when a date is no date, or when bands are walked and the price or a limit is no number.
    QString Value(const QString& price) const;

    // Pushes this level's result down the whole tree below it. The two dates are those in force above this level.
    // ErrorNumber::TypeMismatch when a date is no date.
    void SendDiscountToChilds(const QString& dateFrom, const QString& dateTo);

    // A copy for another product's price: dates, Inherit, Specific and Status, nothing else.
    std::shared_ptr<clsDiscount> CreateClone() const;

private:
    using Children = KeyedCollection<std::shared_ptr<clsDiscount>>;

    QString bandFor(const QString& price) const;
    // Whether its dates are its own, and not those of the level above.
    bool hasOwnDates() const { return Status == DiscountStatus::Depend || Status == DiscountStatus::ToAll; }
    bool isOpen(const QString& dateFrom, const QString& dateTo) const;
    void push(bool isValidAbove);
    QString sentPercentage(bool isValid) const;
    void sendTo(clsDiscount& child, const QString& percentage, bool isValid);

    const Clock* m_clock;
    QString m_specific;
    QString m_applyToWhole;
    std::shared_ptr<clsDependedDiscounts> m_dependedDiscounts;
    std::unique_ptr<Children> m_childs;
    std::weak_ptr<clsDiscount> m_parentDiscount;
};
