// The fixture of the tests of the catalogue's panels: a small shop in the real window, and hands that type and click as
// a person does.
#pragma once

#include "editors/CatalogueTreeModel.h"
#include "editors/Panel.h"
#include "editors/catalogue/CustomGrid.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "support/WindowTest.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

class PanelTest : public WindowTest
{
protected:
    PanelTest();
    // Opens a shop "Fern" with the taxes "Duty" and "Local", the charges "Isles" and "Far", the category "Tea" (2) with
    // the category "Green" (3) and the product "Sencha" (4, price 10), and in "Green" the product "Mint" (5).
    void SetUp() override;

    // Shows the panel of that name for the active object, though no button leads to it.
    void showPanel(const char* name);

    // A widget of the visible panel, or of another one.
    template <class T = QWidget>
    T* in(const char* name, const QWidget* panel = nullptr) const
    {
        T* widget = (panel ? panel : window->VisibleFrame)->findChild<T*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QString textIn(const char* name) const { return in<QLineEdit>(name)->text(); }

    // Replaces a field's text by keys.
    void type(const char* field, const QString& text) { typeInto(in(field), text); }
    static void typeInto(QWidget* field, const QString& text);
    // Presses a button, an option, a check box or a link.
    void press(const char* button) { press(in<QAbstractButton>(button)); }
    static void press(QAbstractButton* button);
    void submit() { press("imgButtonSubmit"); }
    void reset() { press("imgButtonReset"); }

    // Cells of a grid, 0-based from the first row of data.
    static void clickCell(CustomGrid* grid, int row, int column);
    static void typeIntoCell(CustomGrid* grid, int row, int column, const QString& text);
    static QString cell(const CustomGrid* grid, int row, int column);
    static QStringList rowOf(const CustomGrid* grid, int row);
    // The titles of the columns of data.
    static QStringList titlesOf(const CustomGrid* grid);
    // Appends a row by the link and types its first cells.
    void addRow(CustomGrid* grid, const QStringList& texts);

    ShopClass& shop() const { return *window->session().shop; }
    std::shared_ptr<CategoryClass> category(const char* id) const;
    std::shared_ptr<ProductClass> product(const char* id) const;
    void putIntoCart(const char* id);
    void answerTheCartQuestion(bool answer);
    // Ends the program without saving and starts it again.
    void startAgain();
};
