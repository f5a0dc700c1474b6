#include "editors/catalogue/CustomGrid.h"

#include "base/Numbers.h"
#include "editors/LinkLabel.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/Twips.h"
#include "editors/catalogue/GridPictures.h"
#include "editors/catalogue/RuledTable.h"
#include "look/Measures.h"
#include "model/ShopSession.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString taxTag = u"Tax"_s;
const QString chargeTag = u"Charge"_s;

constexpr int useColumn = 2;
constexpr int linkWidth = pixels(1130);
constexpr int besideColumns = pixels(1200); // what the columns of text leave of the grid's width
constexpr int besideTaxColumns = pixels(100);
constexpr std::array chargeWidths = {pixels(2500), pixels(1500), pixels(400), linkWidth};
constexpr int narrowestColumn = 60; // pixels: with very many columns the grid scrolls
constexpr int besideTitle = 16;     // pixels of a column that its title does not get
constexpr int aroundTitle = 12;     // pixels above and below a title

// What stands in a cell of the "Use" column beside its picture.
enum UseRole { CheckedRole = MarkedRole + 1, ModelIndexRole };

} // namespace

CustomGrid::CustomGrid(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      BaseGrd(named<QTableWidget>(new RuledTable(this), "BaseGrd", u"Table"_s)),
      ForGridTxt(named(new QLineEdit(BaseGrd->viewport()), "ForGridTxt", u"Text of the cell"_s)),
      AddItemButtonLbl(new LinkLabel("AddItemButtonLbl", u"Add item"_s, this)),
      m_host(host)
{
    BaseGrd->setSelectionMode(QAbstractItemView::SingleSelection);
    BaseGrd->setEditTriggers(QAbstractItemView::NoEditTriggers);
    BaseGrd->setTabKeyNavigation(false);
    BaseGrd->setItemDelegate(newGridDelegate(BaseGrd));
    BaseGrd->verticalHeader()->hide();
    BaseGrd->verticalHeader()->setDefaultSectionSize(gridRowHeight(BaseGrd->fontMetrics()));
    BaseGrd->horizontalHeader()->setSectionsClickable(false);
    BaseGrd->horizontalHeader()->setHighlightSections(false);
    BaseGrd->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    BaseGrd->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter |
                                                     Qt::Alignment(Qt::TextWordWrap));
    BaseGrd->setMinimumHeight(110);
    BaseGrd->installEventFilter(this);
    ForGridTxt->setTextMargins(Measure::Tight, 0, Measure::Tight, 0); // over the text of the cell
    BaseGrd->viewport()->installEventFilter(this);
    ForGridTxt->setMaxLength(std::numeric_limits<int>::max());
    ForGridTxt->installEventFilter(this);
    ForGridTxt->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(BaseGrd, 1);
    column->addWidget(AddItemButtonLbl);

    connectGuarded(m_host.errorHandler(), BaseGrd, &QTableWidget::cellClicked, this, &CustomGrid::cellActivated);
    connectGuarded(m_host.errorHandler(), AddItemButtonLbl, &LinkLabel::clicked, this, &CustomGrid::addItem);
    connectGuarded(m_host.errorHandler(), ForGridTxt, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_edited.isValid()) {
            setCellText(m_edited.row(), m_edited.column(), text);
            markEditor();
        }
    });
    connectGuarded(m_host.errorHandler(), BaseGrd->verticalScrollBar(), &QScrollBar::rangeChanged, this,
                   &CustomGrid::arrangeColumns);
    for (const QScrollBar* bar : {BaseGrd->horizontalScrollBar(), BaseGrd->verticalScrollBar()}) {
        connectGuarded(m_host.errorHandler(), bar, &QScrollBar::valueChanged, this, &CustomGrid::placeEditor);
    }
}

void CustomGrid::setContents(std::vector<CellContent> contents)
{
    m_contents = std::move(contents);
}

// Filling and reading ------------------------------------------------------------------------------------------------

void CustomGrid::prepare(const QString& tag, const QStringList& titles, int rows)
{
    ForGridTxt->hide();
    m_tag = tag;
    BaseGrd->clear();
    BaseGrd->setColumnCount(static_cast<int>(titles.size()) + 1);
    BaseGrd->setHorizontalHeaderLabels(titles + QStringList{QString()});
    BaseGrd->setRowCount(rows);
    arrangeColumns();
}

void CustomGrid::Init(const QStringList& titles, const Columns& columns, bool isTaxGrid)
{
    const int rows = !columns.empty() && columns[0] ? columns[0]->Count() : 0;
    prepare(isTaxGrid ? taxTag : QString(), titles, rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < linkColumn(); ++column) {
            if (isUseColumn(column)) {
                setUse(row, m_host.session().shop->Taxes.Item(row + 1).IsChecked, row + 1);
                continue;
            }
            const auto place = static_cast<std::size_t>(column);
            const TextCollection* texts = place < columns.size() ? columns[place].get() : nullptr;
            const bool isThere = texts && row < texts->Count();
            setCellText(row, column, isThere ? texts->Item(row + 1) : QString());
        }
        setLink(row);
    }
}

void CustomGrid::InitForCharges()
{
    const KeyedCollection<clsCharge>& charges = m_host.session().shop->Charges;
    prepare(chargeTag, {u"Description"_s, u"Cost"_s, u"Use"_s}, charges.Count());
    for (int row = 0; row < charges.Count(); ++row) {
        const clsCharge& charge = charges.Item(row + 1);
        setCellText(row, 0, charge.Destination);
        setCellText(row, 1, charge.Cost);
        setUse(row, charge.IsChecked, row + 1);
        setLink(row);
    }
}

CustomGrid::Columns CustomGrid::GetData() const
{
    if (!hasRows()) {
        return {nullptr};
    }
    Columns columns;
    for (int column = 0; column < linkColumn(); ++column) {
        auto texts = std::make_shared<TextCollection>();
        for (int row = 0; row < BaseGrd->rowCount(); ++row) {
            texts->Add(cellText(row, column), u"row%1"_s.arg(row + 1));
        }
        columns.push_back(texts);
    }
    return columns;
}

void CustomGrid::GetDataForCharges()
{
    KeyedCollection<clsCharge> charges;
    for (int row = 0; row < BaseGrd->rowCount(); ++row) {
        clsCharge charge;
        charge.Destination = cellText(row, 0);
        charge.Cost = cellText(row, 1);
        charge.IsChecked = isUsed(row);
        charges.Add(charge);
        setUse(row, charge.IsChecked, row + 1);
    }
    m_host.session().shop->Charges = std::move(charges);
}

void CustomGrid::GetDataForTaxes()
{
    KeyedCollection<clsTax> taxes;
    for (int row = 0; row < BaseGrd->rowCount(); ++row) {
        clsTax tax;
        tax.TaxName = cellText(row, 0);
        tax.setPercent(NormalizeDecimal(cellText(row, 1)));
        tax.IsChecked = isUsed(row);
        taxes.Add(tax);
        setUse(row, tax.IsChecked, row + 1);
    }
    m_host.session().shop->Taxes = std::move(taxes);
}

// Cells --------------------------------------------------------------------------------------------------------------

bool CustomGrid::isUseColumn(int column) const
{
    return !m_tag.isEmpty() && column == useColumn;
}

QString CustomGrid::cellText(int row, int column) const
{
    const QTableWidgetItem* cell = BaseGrd->item(row, column);
    return cell ? cell->text() : QString();
}

CellContent CustomGrid::contentOf(int column) const
{
    return m_contents[std::min(static_cast<std::size_t>(column), m_contents.size() - 1)];
}

void CustomGrid::setCellText(int row, int column, const QString& text)
{
    QTableWidgetItem* cell = BaseGrd->item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        BaseGrd->setItem(row, column, cell);
    }
    cell->setText(text);
    const QString reason = reasonAgainst(contentOf(column), text);
    cell->setToolTip(reason);
    cell->setData(Qt::AccessibleDescriptionRole, reason);
    cell->setData(MarkedRole, !reason.isEmpty());
}

void CustomGrid::setLink(int row)
{
    auto* link = new QTableWidgetItem(u"Remove"_s);
    link->setTextAlignment(Qt::AlignCenter);
    link->setForeground(palette().brush(QPalette::Active, QPalette::Link)); // off, the delegate sees to it
    QFont font = BaseGrd->font();
    font.setBold(true);
    font.setUnderline(true);
    link->setFont(font);
    BaseGrd->setItem(row, linkColumn(), link);
}

// The row keeps its place in the shop's list (1-based), which it does not lose when a row above it is removed.
void CustomGrid::setUse(int row, bool isChecked, int modelIndex)
{
    auto* cell = new QTableWidgetItem;
    cell->setData(Qt::DecorationRole, usePicture(isChecked, *this));
    cell->setData(Qt::AccessibleTextRole, isChecked ? u"In use"_s : u"Not in use"_s);
    cell->setData(CheckedRole, isChecked);
    cell->setData(ModelIndexRole, modelIndex);
    BaseGrd->setItem(row, useColumn, cell);
}

bool CustomGrid::isUsed(int row) const
{
    const QTableWidgetItem* cell = BaseGrd->item(row, useColumn);
    return cell && cell->data(CheckedRole).toBool();
}

void CustomGrid::arrangeColumns()
{
    const int last = linkColumn();
    if (last < 1) {
        return;
    }
    if (m_tag == chargeTag) {
        for (int column = 0; column <= last; ++column) {
            BaseGrd->setColumnWidth(column, chargeWidths[static_cast<std::size_t>(column)]);
        }
        fitHeader();
        return;
    }
    const QScrollBar* bar = BaseGrd->verticalScrollBar();
    const int beside = besideColumns + (m_tag == taxTag ? besideTaxColumns : 0) +
                       (bar->maximum() > bar->minimum() ? bar->sizeHint().width() : 0);
    const int width = (this->width() - beside) / last;
    for (int column = 0; column < last; ++column) {
        BaseGrd->setColumnWidth(column, std::max(width, narrowestColumn));
    }
    BaseGrd->setColumnWidth(last, linkWidth);
    fitHeader();
}

// High enough for the longest title, wrapped to the width of its column. Titles are aligned with the texts below them;
// the one above the pictures is centred.
void CustomGrid::fitHeader()
{
    QHeaderView* header = BaseGrd->horizontalHeader();
    int textHeight = header->fontMetrics().height();
    for (int column = 0; column < linkColumn(); ++column) {
        QTableWidgetItem* title = BaseGrd->horizontalHeaderItem(column);
        if (isUseColumn(column)) {
            title->setTextAlignment(Qt::AlignCenter);
        }
        const QRect room(0, 0, BaseGrd->columnWidth(column) - besideTitle, QWIDGETSIZE_MAX);
        const QRect text = header->fontMetrics().boundingRect(room, Qt::TextWordWrap, title->text());
        textHeight = std::max(textHeight, text.height());
    }
    header->setFixedHeight(std::max(textHeight + aroundTitle, gridHeaderHeight(header->fontMetrics())));
}

// What a click does --------------------------------------------------------------------------------------------------

void CustomGrid::cellActivated(int row, int column)
{
    if (isUseColumn(column)) {
        toggleUse(row);
    } else if (column == linkColumn()) {
        removeRow(row);
    } else {
        openEditor(row, column);
    }
}

void CustomGrid::toggleUse(int row)
{
    const bool isChecked = !isUsed(row);
    const int place = BaseGrd->item(row, useColumn)->data(ModelIndexRole).toInt();
    if (m_tag == taxTag) {
        m_host.session().shop->Taxes.Item(place).IsChecked = isChecked;
    } else {
        m_host.session().shop->Charges.Item(place).IsChecked = isChecked;
    }
    setUse(row, isChecked, place);
}

void CustomGrid::removeRow(int row)
{
    ForGridTxt->hide();
    BaseGrd->removeRow(row);
}

void CustomGrid::addItem()
{
    const int row = BaseGrd->rowCount();
    BaseGrd->insertRow(row);
    for (int column = 0; column < linkColumn(); ++column) {
        if (!isUseColumn(column)) {
            setCellText(row, column, QString());
        }
    }
    setLink(row);
    ShopClass& shop = *m_host.session().shop;
    if (m_tag == taxTag) {
        shop.Taxes.Add(clsTax());
        setUse(row, false, shop.Taxes.Count());
    } else if (m_tag == chargeTag) {
        shop.Charges.Add(clsCharge());
        setUse(row, false, shop.Charges.Count());
    }
    openEditor(row, 0);
}

// The grid as a whole ------------------------------------------------------------------------------------------------

void CustomGrid::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrangeColumns();
    placeEditor();
}

void CustomGrid::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        for (int row = 0; row < BaseGrd->rowCount(); ++row) {
            if (QTableWidgetItem* link = BaseGrd->item(row, linkColumn())) {
                link->setForeground(palette().brush(QPalette::Active, QPalette::Link));
            }
        }
    }
    QWidget::changeEvent(event);
}

void CustomGrid::Hide()
{
    ForGridTxt->hide();
    BaseGrd->hide();
    AddItemButtonLbl->hide();
}

void CustomGrid::Show()
{
    BaseGrd->show();
    AddItemButtonLbl->show();
}

QString CustomGrid::AddItemButtonTitle() const
{
    return AddItemButtonLbl->text();
}

void CustomGrid::setAddItemButtonTitle(const QString& title)
{
    AddItemButtonLbl->setText(title);
    AddItemButtonLbl->updateGeometry();
}
