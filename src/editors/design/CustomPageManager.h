// The manager of the custom pages: the list of the pages, with the name and the text of the open one. What is typed
// goes to the page when another one is opened and when the panel is saved.
#pragma once

#include "editors/design/PageManager.h"

class CustomPageClass;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

class CustomPageManager : public PageManager
{
    Q_OBJECT

public:
    CustomPageManager(PanelHost& host, QWidget* parent);

protected:
    void loadMore(ShopClass& shop) override;
    void saveMore(ShopClass& shop) override;
    void forget() override;

private:
    QWidget* makeEditor();
    void addPage();
    void deletePage();
    void pageSelected();
    // Shows the page in the fields; none empties and disables them.
    void openPage(const std::shared_ptr<CustomPageClass>& page);
    // Writes what was typed to the open page. A name that is taken, or that no link carries, goes back to the former
    // one.
    void storeOpenPage(ShopClass& shop);
    void rename(ShopClass& shop, const QString& name);
    void fillList(const ShopClass& shop);
    void selectPage(const ShopClass& shop, const CustomPageClass* page);

    QListWidget* CustomPagesListCtl;
    QPushButton* AddPageBtn;
    QPushButton* DeletePageBtn;
    QLineEdit* PageNameTextCtl;
    QPlainTextEdit* PageContentTextCtl;
    std::shared_ptr<CustomPageClass> m_openPage;
    bool m_changed = false; // something was typed since the page was opened or stored
    bool m_filling = false; // the list is filled by the program: selecting opens nothing
};
