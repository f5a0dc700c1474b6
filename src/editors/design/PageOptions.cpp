#include "editors/design/PageOptions.h"

#include "base/RuntimeError.h"
#include "design/CSSClass.h"
#include "design/SwitchWord.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/CSSManagementForm.h"
#include "editors/design/ColourText.h"
#include "editors/design/ColumnGrid.h"
#include "editors/design/frmSelectImageOrText.h"
#include "editors/design/pickers/frmSelectedCustomPages.h"
#include "editors/design/pickers/ucSelectCustPage.h"
#include "look/Measures.h"
#include "look/SwatchButton.h"
#include "look/WordLabel.h"
#include "model/ShopSession.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostColumns = 3;
constexpr int longestText = 620; // pixels of a field for a text

ShopDesignClass& designOf(PanelHost& host)
{
    const std::shared_ptr<ShopDesignClass>& design = host.session().shop->ShopDesign;
    if (!design) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *design;
}

QString describe(const clsSelectedImage* image)
{
    if (!image) {
        return u"Not used by this page. The form shows the one of the shopping cart page"_s;
    }
    switch (image->SelectionType) {
    case ImageSelection::Text:
        return u"Text: %1"_s.arg(image->TextValue);
    case ImageSelection::Image:
        return u"Image: %1"_s.arg(image->imageFileName);
    case ImageSelection::Nothing:
        break;
    }
    return u"Nothing chosen"_s;
}

QString describe(const clsSelectedCustomPages& pages)
{
    QStringList names;
    for (const QString& name : pages.selectedPages()) {
        names << name;
    }
    return names.isEmpty() ? u"Nothing chosen"_s : names.join(u", "_s);
}

} // namespace

PageOptions::PageOptions(PanelHost& host, const ManagerTable& table, QWidget* parent)
    : QWidget(parent), m_host(host), m_table(table), m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, Measure::Wide, Measure::Tight, 0);
    m_column->setSpacing(Measure::Wide);
    for (const OptionGroup& group : table.groups) {
        makeGroup(group);
    }
    makeImagesAndLists();
    makeStyles();
    m_column->addStretch(1);
}

// The controls --------------------------------------------------------------------------------------------------------

QVBoxLayout* PageOptions::newGroup(const QString& caption, Section::Line line)
{
    auto* box = new Section(caption, this, line);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Measure::Tight);
    m_column->addWidget(box);
    return column;
}

QPushButton* PageOptions::namedButton(const char* name, const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

void PageOptions::makeGroup(const OptionGroup& group)
{
    const bool isFirst = m_column->count() == 0; // the line below the tabs serves it
    QVBoxLayout* column = newGroup(captionText(group.caption), isFirst ? Section::Line::None : Section::Line::Above);
    auto* grid = new ColumnGrid(mostColumns, 0, this);
    for (const SwitchRow& row : group.switches) {
        auto* box = new QCheckBox(captionText(row.caption), grid);
        box->setObjectName(QLatin1String(row.control));
        grid->add(box);
        m_switches.emplace_back(row.option, box);
    }
    column->addWidget(grid);

    QFormLayout* form = newForm();
    for (const TextRow& row : group.texts) {
        QLineEdit* field = textField(this);
        field->setObjectName(QLatin1String(row.control));
        const bool isNumber = row.holds == Holds::Number;
        field->setMaximumWidth(isNumber ? FieldWidth::Number : longestText);
        if (isNumber) {
            field->setAlignment(Qt::AlignRight);
        }
        QLabel* caption = newCaption(captionText(row.caption), field);
        caption->setFixedHeight(controlHeight(caption->fontMetrics()));
        form->addRow(caption, field);
        m_texts.emplace_back(row.option, field);
    }
    column->addLayout(form);
}

QLabel* PageOptions::addChoice(QGridLayout* grid, QPushButton* button)
{
    auto* label = new WordLabel(WordLabel::Kind::Quiet, {}, this);
    label->setObjectName(button->objectName() + u"Value"_s);
    label->setWordWrap(true);
    const int row = grid->rowCount();
    grid->addWidget(button, row, 0);
    grid->addWidget(label, row, 1);
    return label;
}

void PageOptions::makeImagesAndLists()
{
    if (m_table.imageSlots.empty() && m_table.lists.empty()) {
        return;
    }
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, Measure::Gap, 0, 0);
    grid->setHorizontalSpacing(Measure::Section);
    grid->setVerticalSpacing(Measure::Gap);
    grid->setColumnStretch(1, 1);
    newGroup(m_table.lists.empty() ? u"Buttons"_s : u"Buttons and links"_s, Section::Line::Above)->addLayout(grid);
    for (const SlotRow& row : m_table.imageSlots) {
        QPushButton* button = namedButton(row.control, captionText(row.caption) + u"..."_s);
        m_slotLabels.push_back(addChoice(grid, button));
        connectGuarded(m_host.errorHandler(), button, &QPushButton::clicked, this, [this, &row] { openSlot(row); });
    }
    for (const ListRow& row : m_table.lists) {
        QPushButton* button = namedButton(row.control, captionText(row.caption) + u"..."_s);
        m_listLabels.push_back(addChoice(grid, button));
        connectGuarded(m_host.errorHandler(), button, &QPushButton::clicked, this, [this, &row] { openList(row); });
    }
    if (!m_table.lists.empty()) {
        m_pagesForm = new frmSelectedCustomPages(m_host, this);
        connectGuarded(m_host.errorHandler(), m_pagesForm, &QDialog::finished, this, &PageOptions::showChoices);
    }
}

void PageOptions::makeStyles()
{
    QVBoxLayout* column = newGroup(u"Colours and fonts"_s, Section::Line::Above);
    column->setContentsMargins(0, Measure::Gap, 0, 0);
    m_styleGroup = column->parentWidget();
    auto* grid = new ColumnGrid(mostColumns, Measure::Gap, m_styleGroup);
    column->addWidget(grid);
    for (const StyleRow& row : m_table.styles) {
        auto* button = new SwatchButton(captionText(row.caption), this);
        button->setAutoDefault(false);
        button->setObjectName(u"btnCSS_"_s + QLatin1String(row.style));
        button->setIconSize(SwatchIconSize);
        grid->add(button);
        m_styleButtons.push_back(button);
        connectGuarded(m_host.errorHandler(), button, &QPushButton::clicked, this, [this, &row] { openStyle(row); });
    }
}

void PageOptions::addAheadOfStyles(QWidget* widget, int stretch)
{
    m_column->insertWidget(m_column->indexOf(m_styleGroup), widget, stretch);
    if (stretch > 0) {
        m_column->setStretch(m_column->count() - 1, 0); // the room below the groups is the widget's
    }
    // The tab key follows the eye, too.
    QWidget* before = m_styleButtons.front()->previousInFocusChain();
    while ((before->focusPolicy() & Qt::TabFocus) == 0) {
        before = before->previousInFocusChain();
    }
    for (QWidget* child : widget->findChildren<QWidget*>()) {
        if ((child->focusPolicy() & Qt::TabFocus) != 0) {
            setTabOrder(before, child);
            before = child;
        }
    }
}

// The data ------------------------------------------------------------------------------------------------------------

void PageOptions::load()
{
    const ShopDesignClass& design = designOf(m_host);
    for (const auto& [option, box] : m_switches) {
        box->setChecked(design.isOn(option));
    }
    for (const auto& [option, field] : m_texts) {
        field->setText(design.Option(option));
    }
    showChoices();
}

void PageOptions::save(ShopDesignClass& design) const
{
    for (const auto& [option, box] : m_switches) {
        design.setOption(option, switchWord(box->isChecked()));
    }
    for (const auto& [option, field] : m_texts) {
        design.setOption(option, field->text());
    }
}

std::shared_ptr<clsSelectedImage> PageOptions::imageOf(const SlotRow& row) const
{
    const ShopDesignClass& design = designOf(m_host);
    return row.slot ? design.Image(*row.slot) : design.BuyingForm_RecalculateButton;
}

void PageOptions::showChoices()
{
    for (std::size_t i = 0; i < m_slotLabels.size(); ++i) {
        m_slotLabels[i]->setText(describe(imageOf(m_table.imageSlots[i]).get()));
    }
    for (std::size_t i = 0; i < m_listLabels.size(); ++i) {
        m_listLabels[i]->setText(describe(*designOf(m_host).Pages(m_table.lists[i].list)));
    }
    // The colours of each style on its button. A style that is not there yet is not made by looking.
    const auto& styles = m_host.session().shop->CSSs;
    for (std::size_t i = 0; i < m_styleButtons.size(); ++i) {
        const QString key = u"ID"_s + QLatin1String(m_table.styles[i].style);
        const CSSClass none;
        const CSSClass& style = styles.hasKey(key) ? *styles.Item(key) : none;
        m_styleButtons[i]->setIcon(
            styleSwatch(colourOf(style.ForeGroundColor), colourOf(style.BackGroundColor), devicePixelRatioF()));
    }
}

// The dialogs ---------------------------------------------------------------------------------------------------------

void PageOptions::openSlot(const SlotRow& row)
{
    const QDialog* dialog = showImageOrTextDialog(m_host, this, captionText(row.caption), imageOf(row));
    connectGuarded(m_host.errorHandler(), dialog, &QDialog::finished, this, &PageOptions::showChoices);
}

void PageOptions::openList(const ListRow& row)
{
    if (row.choice == PageChoice::One) {
        m_pagesForm->pagesControl->SetMultiSelect(false);
    }
    m_pagesForm->setWindowTitle(captionText(row.caption));
    ShowCustomPagesDialog(*m_pagesForm, designOf(m_host).Pages(row.list), m_host.session().shop->CustomPages);
}

void PageOptions::openStyle(const StyleRow& row)
{
    const QDialog* dialog = OpenStyle(m_host, this, captionText(row.title), QLatin1String(row.style));
    connectGuarded(m_host.errorHandler(), dialog, &QDialog::finished, this, &PageOptions::showChoices);
}
