// One piece of a parsed template: a text, a value tag, or a block with its body. Made by the parser, owned by the array
// that it stands in; shared, since addParts copies by reference.
#pragma once

#include <QString>

#include <memory>
#include <vector>

struct Template_Element;

// The arrays of elements carry one spare slot at their end: n elements stand at 0 to n - 1, the slot at n is empty
// (null) and n is the upper bound. Loops run from 0 to the upper bound minus 1. An array that was never made has the
// upper bound -1, the array of an empty text has the upper bound 0.
using ElementArray = std::vector<std::shared_ptr<Template_Element>>;

int upperBound(const ElementArray& elements);

// The numbers in Template_Element::TType.
namespace ElementType {
constexpr qint16 Default = 0; // a tag without a known kind word; the parser makes Text of it
constexpr qint16 Static = 1;  // a text between tags; the tag of this kind makes no element at all
constexpr qint16 Text = 2;
constexpr qint16 Html = 3;
constexpr qint16 Js = 4;
constexpr qint16 DHtml = 5;
constexpr qint16 If = 6;
constexpr qint16 IfNot = 7;
constexpr qint16 Cycle = 8;
constexpr qint16 XCycle = 9;
} // namespace ElementType

struct Template_Element
{
    QString Value;               // the text of a Static element, else the name of the variable
    qint16 TType = 0;            // see ElementType
    QString Default;             // fallback of a value tag, comparison value of If and IfNot
    ElementArray Template_Parts; // the body of a block

    // Makes Template_Parts an array with the upper bound n and nothing in it. ErrorNumber::SubscriptOutOfRange for an n
    // below 0.
    void ReDimSubElements(int n);
    // Copies the elements of an array, not its spare slot. ErrorNumber::SubscriptOutOfRange when Template_Parts is too
    // short.
    void addParts(const ElementArray& parts);

    // A readable dump of the element and its body, for diagnosis.
    QString to_string() const { return to_string1(0); }
    // The same with that many blanks ahead of each line; the body stands three blanks deeper.
    QString to_string1(int indent) const;
};
