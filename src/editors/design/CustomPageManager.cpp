#include "editors/design/CustomPageManager.h"

#include "base/ApplicationTitle.h"
#include "design/CustomPageClass.h"
#include "design/PageNames.h"
#include "design/PageTable.h"
#include "design/ShopDesignClass.h"
#include "design/clsSelectedCustomPages.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/RawText.h"
#include "editors/design/PageOptions.h"
#include "look/Measures.h"
#include "look/Section.h"
#include "model/ShopSession.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

// The first name that no page has: "New Page", "New Page 1", "New Page 2" and so on.
QString freeName(const ShopClass& shop)
{
    QString name = u"New Page"_s;
    for (int number = 1; shop.CustomPages.hasKey(name); ++number) {
        name = u"New Page %1"_s.arg(number);
    }
    return name;
}

// A link by one of the fixed names never leads to a custom page.
bool isTaken(const ShopClass& shop, const QString& name, const CustomPageClass& except)
{
    for (const QLatin1StringView fixedName : FixedPageNames) {
        if (name.compare(fixedName, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return shop.CustomPages.hasKey(name) && shop.CustomPages.Item(name).get() != &except;
}

} // namespace

CustomPageManager::CustomPageManager(PanelHost& panelHost, QWidget* parent)
    : PageManager(panelHost, ShopPage::CustomPage, parent),
      CustomPagesListCtl(new QListWidget(this)),
      AddPageBtn(new QPushButton(u"&Add a page"_s, this)),
      DeletePageBtn(new QPushButton(u"&Delete the page"_s, this)),
      PageNameTextCtl(textField(this)),
      PageContentTextCtl(new QPlainTextEdit(this))
{
    options()->addAheadOfStyles(makeEditor(), 1);

    const auto touched = [this] { m_changed = true; };
    connectGuarded(host().errorHandler(), PageNameTextCtl, &QLineEdit::textEdited, this, touched);
    connectGuarded(host().errorHandler(), PageContentTextCtl, &QPlainTextEdit::textChanged, this, touched);
    connectGuarded(host().errorHandler(), AddPageBtn, &QPushButton::clicked, this, &CustomPageManager::addPage);
    connectGuarded(host().errorHandler(), DeletePageBtn, &QPushButton::clicked, this, &CustomPageManager::deletePage);
    connectGuarded(host().errorHandler(), CustomPagesListCtl, &QListWidget::itemSelectionChanged, this,
                   &CustomPageManager::pageSelected);
    openPage(nullptr);
}

QWidget* CustomPageManager::makeEditor()
{
    CustomPagesListCtl->setObjectName(u"CustomPagesListCtl"_s);
    CustomPagesListCtl->setAccessibleName(u"Pages"_s); // a list takes none from its caption
    AddPageBtn->setObjectName(u"AddPageBtn"_s);
    DeletePageBtn->setObjectName(u"DeletePageBtn"_s);
    PageNameTextCtl->setObjectName(u"PageNameTextCtl"_s);
    PageContentTextCtl->setObjectName(u"PageContentTextCtl"_s);
    PageContentTextCtl->setTabChangesFocus(true);
    PageContentTextCtl->setMinimumHeight(140);
    PageContentTextCtl->document()->setDocumentMargin(Measure::Gap - Measure::FieldFrame); // under the name

    auto* group = new Section(u"Your pages"_s, this, Section::Line::None);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Measure::Gap);
    buttons->addWidget(AddPageBtn);
    buttons->addWidget(DeletePageBtn);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(0, Measure::Tight, 0, 0);
    grid->setHorizontalSpacing(Measure::Section);
    grid->setVerticalSpacing(Measure::Tight);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    grid->addWidget(newCaption(u"&Pages"_s, CustomPagesListCtl), 0, 0);
    grid->addWidget(CustomPagesListCtl, 1, 0, 3, 1);
    grid->addLayout(buttons, 4, 0);
    grid->addWidget(newCaption(u"&Name of the page"_s, PageNameTextCtl), 0, 1);
    grid->addWidget(PageNameTextCtl, 1, 1);
    grid->addWidget(newCaption(u"Te&xt of the page, with HTML"_s, PageContentTextCtl), 2, 1);
    grid->addWidget(PageContentTextCtl, 3, 1, 2, 1);
    return group;
}

void CustomPageManager::loadMore(ShopClass& shop)
{
    const std::shared_ptr<CustomPageClass> before = m_openPage;
    fillList(shop);
    openPage(nullptr);
    selectPage(shop, before.get());
}

void CustomPageManager::saveMore(ShopClass& shop)
{
    storeOpenPage(shop);
}

void CustomPageManager::forget()
{
    m_openPage.reset();
}

void CustomPageManager::fillList(const ShopClass& shop)
{
    const QScopedValueRollback filling(m_filling, true);
    CustomPagesListCtl->clear();
    for (const std::shared_ptr<CustomPageClass>& page : shop.CustomPages) {
        CustomPagesListCtl->addItem(page->pageName);
    }
    CustomPagesListCtl->setCurrentRow(-1);
}

void CustomPageManager::selectPage(const ShopClass& shop, const CustomPageClass* page)
{
    for (int position = 1; position <= shop.CustomPages.Count(); ++position) {
        if (shop.CustomPages.Item(position).get() == page) {
            CustomPagesListCtl->setCurrentRow(position - 1);
        }
    }
}

void CustomPageManager::pageSelected()
{
    // The current row is not asked: the tab key gives the list one without selecting it.
    const QList<QListWidgetItem*> selected = CustomPagesListCtl->selectedItems();
    if (m_filling || selected.isEmpty()) {
        return;
    }
    const int row = CustomPagesListCtl->row(selected.front());
    ShopClass& shop = *host().session().shop;
    storeOpenPage(shop);
    openPage(shop.CustomPages.Item(row + 1));
}

void CustomPageManager::openPage(const std::shared_ptr<CustomPageClass>& page)
{
    m_openPage = page;
    PageNameTextCtl->setText(page ? page->pageName : QString());
    PageContentTextCtl->setPlainText(page ? page->ContentText : QString());
    PageNameTextCtl->setEnabled(page != nullptr);
    PageContentTextCtl->setEnabled(page != nullptr);
    m_changed = false;
}

void CustomPageManager::storeOpenPage(ShopClass& shop)
{
    if (!m_openPage || !m_changed) {
        return;
    }
    m_changed = false;
    m_openPage->ContentText = rawText(*PageContentTextCtl->document(), u"\n"_s);
    const QString name = PageNameTextCtl->text();
    if (name == m_openPage->pageName) {
        return;
    }
    if (!linkCarries(name) || isTaken(shop, name, *m_openPage)) {
        PageNameTextCtl->setText(m_openPage->pageName);
        return;
    }
    rename(shop, name);
}

// The page keeps its place in the list and in the menus that show it, and is found under its new name.
void CustomPageManager::rename(ShopClass& shop, const QString& name)
{
    for (std::size_t selection = 0; selection < PageSelectionCount; ++selection) {
        shop.ShopDesign->Pages(static_cast<PageSelection>(selection))->rename(m_openPage->pageName, name);
    }
    m_openPage->pageName = name;
    KeyedCollection<std::shared_ptr<CustomPageClass>> pages;
    for (const std::shared_ptr<CustomPageClass>& page : shop.CustomPages) {
        pages.Add(page, page->pageName);
        CustomPagesListCtl->item(pages.Count() - 1)->setText(page->pageName);
    }
    shop.CustomPages = std::move(pages);
}

void CustomPageManager::addPage()
{
    ShopClass& shop = *host().session().shop;
    storeOpenPage(shop);
    auto page = std::make_shared<CustomPageClass>();
    page->pageName = freeName(shop);
    shop.CustomPages.Add(page, page->pageName);
    fillList(shop);
    selectPage(shop, page.get());
    PageNameTextCtl->setFocus();
    PageNameTextCtl->selectAll();
}

void CustomPageManager::deletePage()
{
    UserPrompts& prompts = host().session().prompts;
    if (!m_openPage) {
        prompts.showMessage(applicationTitle(), u"Please select Page to delete"_s, PromptIcon::None);
        return;
    }
    if (!prompts.askYesNo(applicationTitle(), u"Do you really want to delete the page?"_s)) {
        return;
    }
    ShopClass& shop = *host().session().shop;
    shop.CustomPages.Remove(m_openPage->pageName);
    fillList(shop);
    openPage(nullptr);
}
