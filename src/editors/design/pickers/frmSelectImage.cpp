#include "editors/design/pickers/frmSelectImage.h"

#include "editors/design/pickers/PicturesList.h"
#include "editors/design/pickers/ucSelectImage.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmSelectImage::frmSelectImage(PanelHost& host, const std::shared_ptr<clsSelectedImage>& selection, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(u"frmSelectImage"_s);
    setWindowTitle(u"Choose a picture"_s);
    auto* images = new ucSelectImage(host, this);
    images->setObjectName(u"ucImages"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(images);
    resize(PicturesList::dialogSize(*this));
    images->SetParent(this);
    images->SetActiveObject(selection);
}
