// The grid that edits all tables of the catalogue: columns of text, in a tax or charge grid a "Use" column of pictures,
// and a last column of "Remove" links; under it a link that appends a row. A text is edited in a box over its cell, and
// each key is in the grid at once. The data is in the cells only, with one exception: in a tax or charge grid "Use" and
// an appended row change the shop's list at once. A panel owns it.
#pragma once

#include "editors/catalogue/CellContent.h"
#include "model/ProductClass.h"

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QTableWidget>

#include <memory>
#include <vector>

class LinkLabel;
class PanelHost;

class CustomGrid : public QWidget
{
    Q_OBJECT

public:
    // One collection for each column of text; an absent one (null) is an empty column.
    using Columns = std::vector<std::shared_ptr<TextCollection>>;

    // The host must outlive it.
    CustomGrid(PanelHost& host, QWidget* parent);

    QTableWidget* BaseGrd;
    QLineEdit* ForGridTxt;
    LinkLabel* AddItemButtonLbl;

    // What the columns of text should hold, from the first on; the last one stands for all behind it. To be called
    // before the grid is filled; without it all are plain texts.
    void setContents(std::vector<CellContent> contents);

    // Fills the grid from the shop's charges.
    void InitForCharges();
    // Fills the grid: one column per title, as many rows as the first collection has items. With the tax flag the third
    // column shows which of the shop's taxes are in use.
    void Init(const QStringList& titles, const Columns& columns, bool isTaxGrid = false);

    // Reads all rows back, one collection per column, under the keys "row1", "row2", ... Without rows the result is one
    // element, which is absent.
    Columns GetData() const;
    // Write all rows to the shop's list of charges, or of taxes.
    void GetDataForCharges();
    void GetDataForTaxes();

    bool hasRows() const { return BaseGrd->rowCount() > 0; }
    // "Tax", "Charge", or empty for a grid without "Use".
    const QString& Tag() const { return m_tag; }

    void Hide();
    void Show();

    // "Add item" until it is set.
    QString AddItemButtonTitle() const;
    void setAddItemButtonTitle(const QString& title);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int linkColumn() const { return BaseGrd->columnCount() - 1; }
    bool isUseColumn(int column) const;
    QString cellText(int row, int column) const;
    CellContent contentOf(int column) const;
    // Marks a text that is not what its column should hold.
    void setCellText(int row, int column, const QString& text);

    void prepare(const QString& tag, const QStringList& titles, int rows);
    void arrangeColumns();
    void fitHeader();
    void setLink(int row);
    void setUse(int row, bool isChecked, int modelIndex);
    bool isUsed(int row) const;

    void cellActivated(int row, int column);
    void toggleUse(int row);
    void removeRow(int row);
    void addItem();
    void openEditor(int row, int column);
    void placeEditor();
    void markEditor();
    void moveEditor(int step);
    void moveEditorToRow(int row);
    bool gridKey(const QKeyEvent& key);
    bool editorKey(const QKeyEvent& key);

    PanelHost& m_host;
    QString m_tag;
    QPersistentModelIndex m_edited; // the cell under the editor, whichever the current one is
    std::vector<CellContent> m_contents = {CellContent::Text};
};
