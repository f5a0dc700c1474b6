// What the three discount panels share: the options of a level's discount with the fields that each of them uses, and
// the dates. It is filled from a discount and written back to one; pushing the result down the catalogue is the panel's
// business. A panel owns it.
#pragma once

#include <QRadioButton>

#include <span>
#include <vector>

class CustomGrid;
class DateField;
class MonthCalendar;
class NumericBox;
class PanelFrame;
class PanelHost;
class QButtonGroup;
class QLabel;
class clsDiscount;

// What an option puts to use.
enum DiscountUse : unsigned {
    UsesNothing = 0,
    UsesPercent = 1,
    UsesBands = 2,
    UsesInherit = 4, // what is inherited
    UsesDates = 8,
};

// One option of a panel: its name and caption, the status that it stands for, and its uses.
struct DiscountOption
{
    const char* name;
    const char* caption;
    int status;
    unsigned uses;

    constexpr bool has(DiscountUse use) const { return (uses & use) != 0; }
};

class DiscountEditor : public QObject
{
    Q_OBJECT

public:
    // Which percentage of the discount the field beside the options shows: ApplyToWhole in ApplyTxt, or Specific in
    // SpecificTxt.
    enum class Percent { ApplyToWhole, Specific };

    // Builds the fields into the frame. The host and the options must outlive it.
    DiscountEditor(PanelHost& host, std::span<const DiscountOption> options, Percent percent, PanelFrame* frame);

    // Shows a discount; the text tells what is inherited. Before that it asks whether a cart that is not empty may be
    // emptied; after a No nothing can be changed until it is filled again.
    void fill(clsDiscount& discount, const QString& inherited);

    // Dates and percentage, and the bands when there are any in the grid: an empty grid leaves those of the discount.
    void write(clsDiscount& discount) const;
    // The status of the option that is on; without one, the discount keeps its own.
    void writeStatus(clsDiscount& discount) const;

private:
    void makeOptions(PanelFrame* frame);
    void makeDates(PanelFrame* frame);
    void makeBands(PanelFrame* frame);
    void setEditable(bool isEditable);
    // Puts the fields of the option that is on to use, and the others out of it.
    void applyOption();
    const DiscountOption* chosenOption() const;
    void chooseStatus(int status);

    PanelHost& m_host;
    std::span<const DiscountOption> m_options;
    Percent m_percent;
    QButtonGroup* m_buttons;
    NumericBox* m_percentBox = nullptr;
    QLabel* lblInherit = nullptr;
    MonthCalendar* DateMV = nullptr;
    DateField* DateFromTxt = nullptr;
    DateField* DateToTxt = nullptr;
    CustomGrid* DiscountGrd = nullptr; // none where no option uses it
    QWidget* m_bandsGroup = nullptr;
    bool m_isEditable = true;
};

// What a discount inherits, in words; empty for a status other than "Inherit". With bands a price (a number text) picks
// the percentage; without a price, at a category, the bands are named as such.
QString inheritedText(const clsDiscount& discount);
QString inheritedText(const clsDiscount& discount, const QString& price);
