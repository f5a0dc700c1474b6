#include "editors/catalogue/ProductShippingCostsPanel.h"

#include "editors/NumericBox.h"
#include "model/ShopSession.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct ShippingOption
{
    const char* name;
    const char* caption;
    QLatin1StringView status; // the word of the model
};

enum Option { NoCharges, ByWeight, Individual };

constexpr std::array shippingOptions = {
    ShippingOption{"NoChargesOpt", "No shipping charges", "No"_L1},
    ShippingOption{"ByWeightOpt", "By weight", "Weight"_L1},
    ShippingOption{"IndividualOpt", "Individual costs", "Individual"_L1},
};

} // namespace

ProductShippingCostsPanel::ProductShippingCostsPanel(PanelHost& host, QWidget* parent)
    : CataloguePanel(host, u"Shipping costs"_s, parent), m_options(new QButtonGroup(this))
{
    QVBoxLayout* choice = m_frame->addColumn(u"How shipping is charged"_s);
    for (const ShippingOption& option : shippingOptions) {
        QRadioButton* button = newOption(option.name, QLatin1String(option.caption), m_frame);
        m_options->addButton(button, static_cast<int>(m_options->buttons().size()));
        choice->addWidget(button);
    }
    WeightTxt = new NumericBox(NumericBox::Takes::Number, m_frame);
    QFormLayout* weight = m_frame->addForm(u"Weight"_s);
    addField(weight, u"Weight (kg)"_s, WeightTxt, "WeightTxt");
    WeightTxt->setFixedWidth(FieldWidth::Number);
    m_costForm = m_frame->addForm(u"Costs by shipping type"_s);
    addPair();

    connectGuarded(m_host.errorHandler(), m_options, &QButtonGroup::idToggled, this,
                   &ProductShippingCostsPanel::applyOption);
    applyOption();
}

void ProductShippingCostsPanel::addPair()
{
    QWidget* group = m_costForm->parentWidget();
    auto* label = named(new QLabel(group), "ShippingTypeNameLbl", QString());
    auto* box = named(textField(group), "ShippingTypeCostTxt", QString());
    box->setFixedWidth(FieldWidth::Number);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(box);
    m_costForm->addRow(label, box);
    label->show(); // else the layout counts them one turn of the event loop later
    box->show();
    m_costs.push_back({label, box});
}

void ProductShippingCostsPanel::fillCosts(ProductClass& product)
{
    const std::shared_ptr<TextCollection>& types = m_host.session().shop->ShippingTypeName;
    const int count = types ? types->Count() : 0;
    while (static_cast<int>(m_costs.size()) < count) {
        addPair();
    }
    while (m_costs.size() > 1 && static_cast<int>(m_costs.size()) > count) {
        m_costForm->removeRow(m_costs.back().ShippingTypeNameLbl);
        m_costs.pop_back();
    }
    m_costForm->parentWidget()->setVisible(count > 0);
    const TextCollection& costs = *product.ShippingCosts();
    for (int i = 0; i < static_cast<int>(m_costs.size()); ++i) {
        const TypeCost& pair = m_costs[static_cast<std::size_t>(i)];
        const QString name = i < count ? types->Item(i + 1) : QString();
        pair.ShippingTypeNameLbl->setText(name);
        pair.ShippingTypeCostTxt->setAccessibleName(name);
        pair.ShippingTypeCostTxt->setText(i < costs.Count() ? costs.Item(i + 1) : QString());
    }
}

void ProductShippingCostsPanel::fill(ProductClass& product)
{
    fillCosts(product);
    m_options->setExclusive(false); // any other word selects none
    for (std::size_t i = 0; i < shippingOptions.size(); ++i) {
        m_options->button(static_cast<int>(i))->setChecked(product.ShippingStatus == shippingOptions[i].status);
    }
    m_options->setExclusive(true);
    WeightTxt->fill(product.Weight);
    applyOption();
}

void ProductShippingCostsPanel::write(ProductClass& product)
{
    if (const int option = m_options->checkedId(); option >= 0) {
        product.ShippingStatus = shippingOptions[static_cast<std::size_t>(option)].status;
    }
    product.Weight = WeightTxt->text();
    TextCollection costs;
    if (!m_costForm->parentWidget()->isHidden()) { // else the shop has no types
        for (const TypeCost& pair : m_costs) {
            const QString type = pair.ShippingTypeNameLbl->text();
            const QString cost = pair.ShippingTypeCostTxt->text();
            if (costs.hasKey(type)) {
                costs.Add(cost); // a second type of the same name
            } else {
                costs.Add(cost, type);
            }
        }
    }
    *product.ShippingCosts() = std::move(costs); // in place: a clone has the same object
}

void ProductShippingCostsPanel::applyOption()
{
    const int option = m_options->checkedId();
    WeightTxt->setEnabled(option == ByWeight);
    for (const TypeCost& pair : m_costs) {
        pair.ShippingTypeCostTxt->setEnabled(option == Individual);
    }
}
