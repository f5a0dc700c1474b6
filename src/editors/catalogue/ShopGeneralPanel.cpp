#include "editors/catalogue/ShopGeneralPanel.h"

#include "editors/LinkLabel.h"
#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"
#include "editors/TextArea.h"
#include "editors/catalogue/ObjectOf.h"
#include "look/Measures.h"
#include "look/WordLabel.h"
#include "model/ShopSession.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ShopGeneralPanel::ShopGeneralPanel(PanelHost& host, QWidget* parent) : Panel(parent), m_host(host)
{
    auto* frame = new PanelFrame(u"Shop general properties"_s, this);
    IdLbl = named(new WordLabel(WordLabel::Kind::Small), "IdLbl", QString());
    ShopNameTxt = textField(frame);
    txtCurrency = textField(frame);
    ShopDescriptionTxt = new TextArea(frame);
    lstCountries = named(new QListWidget(frame), "lstCountries", u"Countries that the shop delivers to"_s);
    auto* lblCheckAll = new LinkLabel("lblCheckAll", u"Check all"_s, frame);
    auto* lblClearAll = new LinkLabel("lblClearAll", u"Clear all"_s, frame);

    QFormLayout* form = frame->addForm(u"The shop"_s);
    setAside(form, IdLbl);
    addField(form, u"Name"_s, ShopNameTxt, "ShopNameTxt");
    addField(form, u"Currency"_s, txtCurrency, "txtCurrency");
    addField(form, u"Description"_s, ShopDescriptionTxt, "ShopDescriptionTxt");
    QVBoxLayout* countries = frame->addColumn(u"Countries that the shop delivers to"_s, true);
    lstCountries->setMinimumHeight(120);
    txtCurrency->setMaximumWidth(FieldWidth::Short);
    countries->addWidget(lstCountries, 1);
    auto* links = new QHBoxLayout;
    links->setSpacing(Measure::Section);
    links->addWidget(lblCheckAll);
    links->addWidget(lblClearAll);
    links->addStretch(1);
    countries->addLayout(links);
    frame->addButtons(host);

    connectGuarded(m_host.errorHandler(), ShopNameTxt, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_shop) {
            m_host.setNodeText(shopNodeKey(), text);
        }
    });
    connectGuarded(m_host.errorHandler(), lblCheckAll, &LinkLabel::clicked, this, [this] { checkAll(Qt::Checked); });
    connectGuarded(m_host.errorHandler(), lblClearAll, &LinkLabel::clicked, this, [this] { checkAll(Qt::Unchecked); });
}

void ShopGeneralPanel::checkAll(Qt::CheckState state)
{
    for (int row = 0; row < lstCountries->count(); ++row) {
        lstCountries->item(row)->setCheckState(state);
    }
}

void ShopGeneralPanel::SetActiveObject(const CatalogueObject& object)
{
    m_shop = objectOf<ShopClass>(object);
    if (!m_shop) {
        return;
    }
    IdLbl->setText(u"Max ID = %1"_s.arg(m_shop->MaxProductId));
    ShopNameTxt->setText(m_shop->name);
    txtCurrency->setText(m_shop->shop_currency);
    ShopDescriptionTxt->fill(m_shop->Description);
    lstCountries->clear();
    for (const QString& country : m_host.session().CountriesCollection) {
        auto* entry = new QListWidgetItem(country, lstCountries);
        const bool isSelected = m_shop->SelectedCountries && m_shop->SelectedCountries->hasKey(country);
        entry->setCheckState(isSelected ? Qt::Checked : Qt::Unchecked);
    }
}

void ShopGeneralPanel::SaveActiveObject()
{
    if (!m_shop) {
        return;
    }
    m_shop->name = ShopNameTxt->text();
    m_shop->shop_currency = txtCurrency->text();
    m_shop->Description = ShopDescriptionTxt->text();
    m_shop->SelectedCountries = std::make_shared<TextCollection>();
    for (int row = 0; row < lstCountries->count(); ++row) {
        const QListWidgetItem& entry = *lstCountries->item(row);
        if (entry.checkState() == Qt::Checked) {
            m_shop->SelectedCountries->Add(entry.text(), entry.text());
        }
    }
}

void ShopGeneralPanel::ClearActiveObject()
{
    m_shop.reset();
}
