// Picks the picture of a slot from those of the shop, or adds one. It stands in the dialog frmSelectImage, which it
// closes.
#pragma once

#include "design/clsSelectedImage.h"

#include <QDialog>

#include <memory>

class PanelHost;
class PicturesList;

class ucSelectImage : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it.
    ucSelectImage(PanelHost& host, QWidget* parent);

    // The dialog to close. To be called ahead of SetActiveObject, which else shows a box and does nothing.
    void SetParent(QDialog* form);
    void SetActiveObject(const std::shared_ptr<clsSelectedImage>& selection);
    // Takes the selected picture and its size over, when one is selected, and closes the dialog. The kind of the
    // selection stays as it is.
    void SaveActiveObject();

    const std::shared_ptr<clsSelectedImage>& selectedImage() const { return m_selectedImage; }

private:
    PanelHost& m_host;
    PicturesList* m_pictures;
    QDialog* m_form = nullptr;
    std::shared_ptr<clsSelectedImage> m_selectedImage;
};
