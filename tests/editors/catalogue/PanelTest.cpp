#include "PanelTest.h"

#include "editors/LinkLabel.h"
#include "model/clsCart.h"

#include <QSettings>

using namespace Qt::StringLiterals;

PanelTest::PanelTest()
{
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, files.path(u"settings"_s));
    }
}

void PanelTest::SetUp()
{
    useShop("<Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>Fern</Name>"
            "<Taxes>"
            "<Type><Name>Duty</Name><Percent>5</Percent><Used>Y</Used></Type>"
            "<Type><Name>Local</Name><Percent>7.5</Percent><Used>N</Used></Type>"
            "</Taxes><Charges>"
            "<Type><Destination>Isles</Destination><Cost>4</Cost><Used>N</Used></Type>"
            "<Type><Destination>Far</Destination><Cost>9</Cost><Used>Y</Used></Type>"
            "</Charges>"
            "<SelectedCountries/>"
            "<Category><Id>2</Id><Name>Tea</Name>"
            "<Category><Id>3</Id><Name>Green</Name>"
            "<Product><Id>5</Id><Name>Mint</Name><Price>8</Price><Related/></Product></Category>"
            "<Product><Id>4</Id><Name>Sencha</Name><Price>10</Price><Related/></Product></Category>");
    writeFile(files.path(u"countries.txt"_s), "Norway\r\nIceland\r\nMalta\r\n");
    start();
}

void PanelTest::showPanel(const char* name)
{
    window->ShowFrame(find<Panel>(name), PanelCode::Show);
}

void PanelTest::typeInto(QWidget* field, const QString& text)
{
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(4, field->height() / 2));
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

void PanelTest::press(QAbstractButton* button)
{
    ASSERT_TRUE(button->isVisible()) << button->objectName().toStdString();
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void PanelTest::clickCell(CustomGrid* grid, int row, int column)
{
    QTableWidget* table = grid->BaseGrd;
    const QModelIndex index = table->model()->index(row, column);
    ASSERT_TRUE(index.isValid()) << row << ", " << column;
    table->scrollTo(index);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
}

void PanelTest::typeIntoCell(CustomGrid* grid, int row, int column, const QString& text)
{
    clickCell(grid, row, column);
    ASSERT_TRUE(grid->ForGridTxt->isVisible());
    QTest::keySequence(grid->ForGridTxt, QKeySequence::SelectAll);
    QTest::keyClick(grid->ForGridTxt, Qt::Key_Delete);
    QTest::keyClicks(grid->ForGridTxt, text);
}

QString PanelTest::cell(const CustomGrid* grid, int row, int column)
{
    const QTableWidgetItem* item = grid->BaseGrd->item(row, column);
    return item ? item->text() : QString();
}

QStringList PanelTest::rowOf(const CustomGrid* grid, int row)
{
    QStringList texts;
    for (int column = 0; column + 1 < grid->BaseGrd->columnCount(); ++column) {
        texts << cell(grid, row, column);
    }
    return texts;
}

QStringList PanelTest::titlesOf(const CustomGrid* grid)
{
    QStringList titles;
    for (int column = 0; column + 1 < grid->BaseGrd->columnCount(); ++column) {
        titles << grid->BaseGrd->horizontalHeaderItem(column)->text();
    }
    return titles;
}

void PanelTest::addRow(CustomGrid* grid, const QStringList& texts)
{
    press(grid->AddItemButtonLbl);
    const int row = grid->BaseGrd->rowCount() - 1;
    for (int column = 0; column < texts.size(); ++column) {
        typeIntoCell(grid, row, column, texts[column]);
    }
}

std::shared_ptr<CategoryClass> PanelTest::category(const char* id) const
{
    return window->session().objects.Category(QLatin1String(id));
}

std::shared_ptr<ProductClass> PanelTest::product(const char* id) const
{
    return window->session().objects.Product(QLatin1String(id));
}

void PanelTest::putIntoCart(const char* id)
{
    const std::shared_ptr<ProductClass> chosen = product(id);
    window->session().Cart->AddNewProduct(chosen->id, chosen->name, chosen, chosen->Price()->Value, u"1"_s);
}

void PanelTest::answerTheCartQuestion(bool answer)
{
    prompts.answerYesNo(u"Your shopping cart isn't empty"_s,
                        u"Do you want make changs and empty cart?\r\n\r\n"
                        "YES - cart will be emptied\r\nNO - changing will be impossible"_s,
                        answer);
}

void PanelTest::startAgain()
{
    window.reset();
    start();
}
