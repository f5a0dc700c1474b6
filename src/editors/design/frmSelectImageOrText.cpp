#include "editors/design/frmSelectImageOrText.h"

#include "editors/design/pickers/PicturesList.h"
#include "editors/design/ucSelectImageOrText.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmSelectImageOrText::frmSelectImageOrText(PanelHost& host, const std::shared_ptr<clsSelectedImage>& selection,
                                           QWidget* parent)
    : QDialog(parent)
{
    setObjectName(u"frmSelectImageOrText"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* images = new ucSelectImageOrText(host, this);
    images->setObjectName(u"ucImages"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(images);
    resize(PicturesList::dialogSize(*this));
    images->SetParent(this);
    images->SetActiveObject(selection);
}

frmSelectImageOrText* showImageOrTextDialog(PanelHost& host, QWidget* parent, const QString& title,
                                            const std::shared_ptr<clsSelectedImage>& selection)
{
    auto* form = new frmSelectImageOrText(host, selection, parent->window());
    form->setWindowTitle(title);
    form->open();
    return form;
}
