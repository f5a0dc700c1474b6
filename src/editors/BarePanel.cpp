#include "editors/BarePanel.h"

#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

#include <QVBoxLayout>

#include <variant>

namespace {

// What the heading's second line says of an object.
QString describe(const CatalogueObject& object)
{
    return std::visit(
        [](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>) {
                return QString();
            } else {
                return held->name;
            }
        },
        object);
}

} // namespace

BarePanel::BarePanel(const QString& heading, QWidget* parent) : Panel(parent), m_objectName(new QLabel(this))
{
    setAccessibleName(heading);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);

    auto* title = new QLabel(heading, this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    title->setFont(font);
    m_objectName->setObjectName(QStringLiteral("ObjectNameLbl"));
    m_objectName->setTextFormat(Qt::PlainText);
    m_objectName->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(8);
    layout->addWidget(title);
    layout->addWidget(m_objectName);
    layout->addStretch(1);
}

void BarePanel::SetActiveObject(const CatalogueObject& object)
{
    m_objectName->setText(describe(object));
}

void BarePanel::ClearActiveObject()
{
    m_objectName->clear();
}
