// Picks what a slot of a page shows: an image of the shop, or a text in a style of the slot's own. It stands in the
// dialog frmSelectImageOrText, which it closes.
#pragma once

#include <QWidget>

#include <memory>

class PanelHost;
class PicturesList;
class QCheckBox;
class QDialog;
class QLineEdit;
class QPushButton;
class clsSelectedImage;

class ucSelectImageOrText : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it.
    ucSelectImageOrText(PanelHost& host, QWidget* parent);

    // The dialog to close. To be called ahead of SetActiveObject, which else shows a box and does nothing.
    void SetParent(QDialog* form);
    // Shows the slot. None is a slot that is never filled: everything can be looked at, and nothing is written.
    void SetActiveObject(const std::shared_ptr<clsSelectedImage>& selection);
    // Writes the choice to the slot and closes the dialog. Without a selected picture the slot keeps its file name.
    void SaveActiveObject();

private:
    void useText(bool text);
    void enableOk();

    PanelHost& m_host;
    PicturesList* m_pictures;
    QCheckBox* chkText;
    QLineEdit* txtText;
    QPushButton* btnCSS_Text;
    QPushButton* OkBtn;
    QDialog* m_form = nullptr;
    std::shared_ptr<clsSelectedImage> m_selection;
    bool m_filling = false; // an entry selected by the program leaves chkText
};
