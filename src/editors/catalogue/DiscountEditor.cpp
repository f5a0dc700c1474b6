#include "editors/catalogue/DiscountEditor.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "editors/DateField.h"
#include "editors/NumericBox.h"
#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/catalogue/CustomGrid.h"
#include "look/Measures.h"
#include "model/ShopSession.h"
#include "model/clsCart.h"
#include "model/clsDiscount.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList bandTitles = {u"From Price"_s, u"To Price"_s, u"Discount Percent"_s};

CustomGrid::Columns bandColumns(clsDiscount& discount)
{
    CustomGrid::Columns columns(3);
    std::generate(columns.begin(), columns.end(), [] { return std::make_shared<TextCollection>(); });
    for (const clsDependedDiscount& band : *discount.DependedDiscounts()) {
        columns[0]->Add(band.PriceFrom());
        columns[1]->Add(band.PriceTo());
        columns[2]->Add(band.Value());
    }
    return columns;
}

} // namespace

DiscountEditor::DiscountEditor(PanelHost& host, std::span<const DiscountOption> options, Percent percent,
                               PanelFrame* frame)
    : QObject(frame), m_host(host), m_options(options), m_percent(percent), m_buttons(new QButtonGroup(this))
{
    makeOptions(frame);
    makeDates(frame);
    if (std::any_of(options.begin(), options.end(),
                    [](const DiscountOption& option) { return option.has(UsesBands); })) {
        makeBands(frame);
    }
    connectGuarded(m_host.errorHandler(), m_buttons, &QButtonGroup::idToggled, this, &DiscountEditor::applyOption);
    applyOption();
}

void DiscountEditor::makeOptions(PanelFrame* frame)
{
    QVBoxLayout* column = frame->addColumn(u"Discount"_s);
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        const DiscountOption& option = m_options[i];
        QRadioButton* button = newOption(option.name, QLatin1String(option.caption), frame);
        m_buttons->addButton(button, static_cast<int>(i));
        auto* row = new QHBoxLayout;
        row->setSpacing(Measure::Tight); // the option keeps some room behind its words
        row->addWidget(button);
        column->addLayout(row);
        if (option.has(UsesPercent)) {
            const bool isSpecific = m_percent == Percent::Specific;
            m_percentBox = named(new NumericBox(NumericBox::Takes::NormalisedNumber, frame),
                                 isSpecific ? "SpecificTxt" : "ApplyTxt", u"Percent"_s);
            m_percentBox->setFixedWidth(FieldWidth::Number);
            row->addWidget(m_percentBox);
        }
        row->addStretch(1);
        if (option.has(UsesInherit)) {
            lblInherit = named(new QLabel(frame), "lblInherit", u"What is inherited"_s);
            lblInherit->setWordWrap(true);
            lblInherit->setTextFormat(Qt::PlainText);
            lblInherit->setIndent(Measure::Box + Measure::Gap); // under the caption of its option
            column->addWidget(lblInherit);
        }
    }
}

void DiscountEditor::makeDates(PanelFrame* frame)
{
    QFormLayout* form = frame->addForm(u"Valid from and to (inclusive)"_s);
    const Clock& clock = m_host.session().clock;
    // Made when it first opens, since making one takes a good part of what starting the program does.
    const auto calendar = [this, frame, &clock]() -> MonthCalendar& {
        if (!DateMV) {
            DateMV = new MonthCalendar(clock, frame);
        }
        return *DateMV;
    };
    DateFromTxt = new DateField(clock, calendar, frame);
    DateToTxt = new DateField(clock, calendar, frame);
    addField(form, u"First day"_s, DateFromTxt, "DateFromTxt");
    addField(form, u"Last day"_s, DateToTxt, "DateToTxt");
    for (DateField* field : {DateFromTxt, DateToTxt}) {
        field->setFixedWidth(FieldWidth::Date);
        field->setPlaceholderText(u"open"_s);
    }
}

void DiscountEditor::makeBands(PanelFrame* frame)
{
    DiscountGrd = named(new CustomGrid(m_host, frame), "DiscountGrd", u"Discount by product price"_s);
    DiscountGrd->setContents({CellContent::Limit, CellContent::Limit, CellContent::NormalisedNumber});
    QVBoxLayout* column = frame->addColumn(u"Discount by product price"_s, PanelFrame::Height::Rest);
    column->addWidget(DiscountGrd, 1);
    m_bandsGroup = column->parentWidget();
}

void DiscountEditor::fill(clsDiscount& discount, const QString& inherited)
{
    // The lines of the cart hold prices that were worked out with the discounts as they are.
    setEditable(ConfirmEmptyCart(m_host.session().Cart.get(), m_host.session().prompts));
    DateFromTxt->fill(discount.DateFrom);
    DateToTxt->fill(discount.DateTo);
    m_percentBox->fill(m_percent == Percent::Specific ? discount.Specific() : discount.ApplyToWhole());
    if (lblInherit) {
        lblInherit->setText(inherited);
    }
    if (DiscountGrd) {
        DiscountGrd->Init(bandTitles, bandColumns(discount));
    }
    chooseStatus(discount.Status);
}

void DiscountEditor::setEditable(bool isEditable)
{
    m_isEditable = isEditable;
    for (QAbstractButton* button : m_buttons->buttons()) {
        button->setEnabled(isEditable);
    }
    applyOption();
}

void DiscountEditor::write(clsDiscount& discount) const
{
    DateFromTxt->settle();
    DateToTxt->settle();
    discount.DateFrom = DateFromTxt->text();
    discount.DateTo = DateToTxt->text();
    if (m_percent == Percent::Specific) {
        discount.setSpecific(m_percentBox->text());
    } else {
        discount.setApplyToWhole(m_percentBox->text());
    }
    if (!DiscountGrd) {
        return;
    }
    const CustomGrid::Columns columns = DiscountGrd->GetData();
    if (!columns[0]) {
        return;
    }
    clsDependedDiscounts& bands = *discount.DependedDiscounts();
    bands.Clear();
    for (int row = 1; row <= columns[0]->Count(); ++row) {
        bands.Add(columns[0]->Item(row), columns[1]->Item(row), columns[2]->Item(row));
    }
}

void DiscountEditor::writeStatus(clsDiscount& discount) const
{
    if (const DiscountOption* option = chosenOption()) {
        discount.Status = option->status;
    }
}

const DiscountOption* DiscountEditor::chosenOption() const
{
    const int id = m_buttons->checkedId();
    return id < 0 ? nullptr : &m_options[static_cast<std::size_t>(id)];
}

// A status without an option here chooses none.
void DiscountEditor::chooseStatus(int status)
{
    m_buttons->setExclusive(false);
    for (std::size_t i = 0; i < m_options.size(); ++i) {
        m_buttons->button(static_cast<int>(i))->setChecked(m_options[i].status == status);
    }
    m_buttons->setExclusive(true);
    applyOption();
}

void DiscountEditor::applyOption()
{
    const DiscountOption* option = chosenOption();
    m_percentBox->setEnabled(m_isEditable && option && option->has(UsesPercent));
    for (DateField* field : {DateFromTxt, DateToTxt}) {
        field->setInUse(option && option->has(UsesDates));
        field->setEnabled(m_isEditable);
    }
    if (lblInherit) {
        lblInherit->setVisible(option && option->has(UsesInherit));
    }
    if (DiscountGrd) {
        const bool isUsed = option && option->has(UsesBands);
        if (isUsed) {
            DiscountGrd->Show();
        } else {
            DiscountGrd->Hide();
        }
        m_bandsGroup->setVisible(isUsed);
        DiscountGrd->setEnabled(m_isEditable);
    }
}

namespace {

QString percentText(const QString& percent)
{
    return percent.isEmpty() ? u"Nothing is inherited at present."_s : u"Inherited discount: %1 %"_s.arg(percent);
}

} // namespace

QString inheritedText(const clsDiscount& discount)
{
    if (discount.Status != DiscountStatus::Inherit) {
        return {};
    }
    if (discount.ParentDependDiscounts) {
        return u"Inherited discount: it depends on the product's price."_s;
    }
    return percentText(discount.Inherit);
}

QString inheritedText(const clsDiscount& discount, const QString& price)
{
    if (discount.Status != DiscountStatus::Inherit) {
        return {};
    }
    if (!discount.ParentDependDiscounts) {
        return percentText(discount.Inherit);
    }
    try {
        return percentText(discount.Value(price.isEmpty() ? u"0"_s : price));
    } catch (const RuntimeError&) {
        // The text of a label is no reason to end the program.
        return u"The inherited discount depends on the price, which cannot be read as a number."_s;
    }
}
