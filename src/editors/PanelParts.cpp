#include "editors/PanelParts.h"

#include "look/Measures.h"
#include "look/Section.h"
#include "look/WordLabel.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <limits>

namespace {

constexpr int leastLabelColumn = 112; // pixels, so that the fields of a panel's forms stand in one line

} // namespace

QVBoxLayout* newPanelColumn(QWidget* panel, const QString& title)
{
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(Measure::Section, Measure::Wide, Measure::Section, Measure::Wide);
    column->setSpacing(Measure::Wide);
    auto* label = new WordLabel(WordLabel::Kind::Title, title, panel);
    label->setWordWrap(true);
    column->addWidget(label);
    return column;
}

QFormLayout* newForm(QWidget* owner)
{
    auto* form = new QFormLayout(owner);
    form->setHorizontalSpacing(Measure::Wide);
    form->setVerticalSpacing(Measure::Gap);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

QLabel* newCaption(const QString& text, QWidget* field)
{
    auto* caption = new QLabel(text, field->parentWidget());
    caption->setBuddy(field);
    return caption;
}

QLabel* captionOf(const QString& label, QWidget* field)
{
    QLabel* caption = newCaption(label, field);
    caption->setMinimumWidth(leastLabelColumn - Measure::Wide);
    // On the middle of the field, or of its first line. A caption of a fixed height would keep its field from growing.
    const QFontMetrics metrics = caption->fontMetrics();
    caption->setMinimumHeight(controlHeight(metrics));
    caption->setContentsMargins(0, (controlHeight(metrics) - metrics.height()) / 2, 0, 0);
    caption->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return caption;
}

void addField(QFormLayout* form, const QString& label, QWidget* field, const char* name)
{
    named(field, name, label);
    form->addRow(captionOf(label, field), field);
}

void setAside(const QLayout* group, QWidget* aside)
{
    qobject_cast<Section*>(group->parentWidget())->setAside(aside);
}

QLineEdit* textField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setMaxLength(std::numeric_limits<int>::max());
    return field;
}

QRadioButton* newOption(const char* name, const QString& caption, QWidget* parent)
{
    return named(new QRadioButton(caption, parent), name, caption);
}
