#include "editors/design/pickers/DialogButtons.h"

#include "look/Measures.h"

using namespace Qt::StringLiterals;

DialogButtons makeDialogButtons(QWidget* parent)
{
    const auto button = [parent](const char* name, const QString& caption) {
        auto* made = new QPushButton(caption, parent);
        made->setObjectName(QLatin1String(name));
        made->setMinimumWidth(96);
        return made;
    };
    DialogButtons buttons{new QHBoxLayout, button("OkBtn", u"OK"_s), button("CancelBtn", u"Cancel"_s)};
    buttons.OkBtn->setDefault(true);
    buttons.CancelBtn->setAutoDefault(false); // Enter stays with OkBtn
    buttons.row->setSpacing(Measure::Gap);
    buttons.row->addStretch(1);
    buttons.row->addWidget(buttons.OkBtn);
    buttons.row->addWidget(buttons.CancelBtn);
    return buttons;
}
