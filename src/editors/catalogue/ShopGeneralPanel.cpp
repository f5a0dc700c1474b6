#include "editors/catalogue/ShopGeneralPanel.h"

#include "editors/LinkLabel.h"
#include "editors/TextArea.h"
#include "editors/WholeRowTicks.h"
#include "look/Measures.h"
#include "look/WordLabel.h"
#include "model/ShopSession.h"

#include <QFormLayout>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ShopGeneralPanel::ShopGeneralPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shop general properties"_s, parent)
{
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    ShopNameTxt = textField(m_frame);
    txtCurrency = textField(m_frame);
    ShopDescriptionTxt = new TextArea(m_frame);
    QFormLayout* form = m_frame->addForm(u"The shop"_s);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, ShopNameTxt, "ShopNameTxt");
    addField(form, u"Currency"_s, txtCurrency, "txtCurrency");
    addField(form, u"Description"_s, ShopDescriptionTxt, "ShopDescriptionTxt");
    txtCurrency->setMaximumWidth(FieldWidth::Short);
    addCountries();
    m_frame->addButtons(host);

    setNameField(ShopNameTxt, [](const ShopClass&) { return shopNodeKey(); });
}

void ShopGeneralPanel::addCountries()
{
    m_count = named(new WordLabel(WordLabel::Kind::Small), "CountriesCountLbl", QString());
    m_filter = named(textField(m_frame), "CountriesFilterTxt", u"Filter the countries"_s);
    m_filter->setPlaceholderText(u"Filter"_s);
    m_filter->setClearButtonEnabled(true);
    lstCountries = named(new QListWidget(m_frame), "lstCountries", u"Countries that the shop delivers to"_s);
    lstCountries->setMinimumHeight(120);
    lstCountries->setItemDelegate(new WholeRowTicks(lstCountries));
    auto* lblCheckAll = new LinkLabel("lblCheckAll", u"Check all"_s, m_frame);
    auto* lblClearAll = new LinkLabel("lblClearAll", u"Clear all"_s, m_frame);

    QVBoxLayout* countries = m_frame->addColumn(u"Countries that the shop delivers to"_s, PanelFrame::Height::Rest);
    setAside(countries, m_count);
    countries->addWidget(m_filter);
    countries->addSpacing(Measure::Tight);
    countries->addWidget(lstCountries, 1);
    auto* links = new QHBoxLayout;
    links->setSpacing(Measure::Section);
    links->addWidget(lblCheckAll);
    links->addWidget(lblClearAll);
    links->addStretch(1);
    countries->addLayout(links);

    connectGuarded(m_host.errorHandler(), lblCheckAll, &LinkLabel::clicked, this, [this] { checkAll(Qt::Checked); });
    connectGuarded(m_host.errorHandler(), lblClearAll, &LinkLabel::clicked, this, [this] { checkAll(Qt::Unchecked); });
    connectGuarded(m_host.errorHandler(), m_filter, &QLineEdit::textChanged, this, &ShopGeneralPanel::applyFilter);
    connectGuarded(m_host.errorHandler(), lstCountries, &QListWidget::itemChanged, this, &ShopGeneralPanel::tellCount);
}

void ShopGeneralPanel::checkAll(Qt::CheckState state)
{
    {
        const QSignalBlocker blocker(lstCountries); // counted once
        for (int row = 0; row < lstCountries->count(); ++row) {
            lstCountries->item(row)->setCheckState(state);
        }
    }
    tellCount();
}

void ShopGeneralPanel::applyFilter()
{
    for (int row = 0; row < lstCountries->count(); ++row) {
        QListWidgetItem* entry = lstCountries->item(row);
        entry->setHidden(!entry->text().contains(m_filter->text().trimmed(), Qt::CaseInsensitive));
    }
}

void ShopGeneralPanel::tellCount()
{
    int checked = 0;
    for (int row = 0; row < lstCountries->count(); ++row) {
        checked += lstCountries->item(row)->checkState() == Qt::Checked ? 1 : 0;
    }
    m_count->setText(u"%1 of %2 checked"_s.arg(checked).arg(lstCountries->count()));
}

void ShopGeneralPanel::fill(ShopClass& shop)
{
    IdLbl->setText(u"Max ID = %1"_s.arg(shop.MaxProductId));
    ShopNameTxt->setText(shop.name);
    txtCurrency->setText(shop.shop_currency);
    ShopDescriptionTxt->fill(shop.Description);
    const QSignalBlocker blocker(lstCountries); // counted once
    lstCountries->clear();
    for (const QString& country : m_host.session().CountriesCollection) {
        auto* entry = new QListWidgetItem(country, lstCountries);
        const bool isSelected = shop.SelectedCountries && shop.SelectedCountries->hasKey(country);
        entry->setCheckState(isSelected ? Qt::Checked : Qt::Unchecked);
    }
    applyFilter();
    tellCount();
}

void ShopGeneralPanel::write(ShopClass& shop)
{
    shop.name = ShopNameTxt->text();
    shop.shop_currency = txtCurrency->text();
    shop.Description = ShopDescriptionTxt->text();
    shop.SelectedCountries = std::make_shared<TextCollection>();
    for (int row = 0; row < lstCountries->count(); ++row) {
        const QListWidgetItem& entry = *lstCountries->item(row);
        if (entry.checkState() == Qt::Checked) {
            shop.SelectedCountries->Add(entry.text(), entry.text());
        }
    }
}

void ShopGeneralPanel::forget()
{
    m_filter->clear();
}
