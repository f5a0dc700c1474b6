#include "editors/SubmitReset.h"

#include "editors/EditorIcon.h"
#include "editors/PanelHost.h"
#include "look/Measures.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

SubmitReset::SubmitReset(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      imgButtonSubmit(new QPushButton(u"Submit"_s, this)),
      imgButtonReset(new QPushButton(u"Reset"_s, this))
{
    imgButtonSubmit->setObjectName(u"imgButtonSubmit"_s);
    imgButtonSubmit->setIcon(editorIcon("submit"));
    imgButtonSubmit->setToolTip(u"Apply the changes made in this panel"_s);
    imgButtonReset->setObjectName(u"imgButtonReset"_s);
    imgButtonReset->setIcon(editorIcon("reset"));
    imgButtonReset->setToolTip(u"Discard the changes made in this panel"_s);
    imgButtonSubmit->setDefault(true);
    for (QPushButton* button : {imgButtonSubmit, imgButtonReset}) {
        button->setAccessibleName(button->text());
    }
    connectGuarded(host.errorHandler(), imgButtonSubmit, &QPushButton::clicked, this,
                   [&host] { host.ApplyActivePanel(); });
    connectGuarded(host.errorHandler(), imgButtonReset, &QPushButton::clicked, this,
                   [&host] { host.ResetActivePanel(); });

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Measure::Gap);
    row->addStretch(1);
    row->addWidget(imgButtonSubmit);
    row->addWidget(imgButtonReset);
}
