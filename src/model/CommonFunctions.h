// Routines without state of their own that the classes of the catalogue share.
#pragma once

#include <QDate>
#include <QString>

#include <memory>

class ProductClass;
class UserPrompts;
class clsCart;

// The text with the user's decimal separator: every "," becomes "." where that is the separator, every "." becomes ","
// where that is; with any other separator the text comes back as it is.
QString NormalizeDecimal(const QString& text);

// A date "dd.mm.yyyy" as local date text; the empty text when it is none.
QString DateTextToLocal(const QString& text);

// Local date text in the shop file's form "dd.mm.yyyy"; the empty text stays empty. Error 13 when it is no date.
QString localToDateText(const QString& text);

// True when the day lies between the two local date texts, both ends included; an empty one is an open end, which the
// years 1900 and 5100 stand for. Error 13 when a text is no date.
bool dateIsBetween(const QDate& day, const QString& dateFrom, const QString& dateTo);

// The price lowered by that many percent, rounded to two decimals, shortest form; an empty text counts as 0. Both and
// the result are number texts of the user's locale. Error 13 when one is no number, 6 when the result is out of range.
QString CalculateNewPrice(const QString& price, const QString& percent);

// The five discount statuses as numbers and as words of the shop file: 1 "No", 2 "ToAll", 3 "Depend", 4 "Inherit",
// 5 "Specific". Error 94 for any other word or number.
int StatusFromWord(const QString& word);
QString StatusToWord(int number);

// The copy of a product that stands behind a line of the preview's cart: its price is a copy of its own, ShippingCosts,
// Taxes and selectedImage are the same objects, and it has no category.
std::shared_ptr<ProductClass> CopyProductForPreview(ProductClass& product);

// True when the cart is empty or the user agrees to empty it, which is then done. Error 91 when there is no cart.
bool ConfirmEmptyCart(clsCart* cart, UserPrompts& prompts);
