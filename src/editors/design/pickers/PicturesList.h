// The pictures of the shop as a list with a preview, and the button that adds one from elsewhere. The pickers of the
// images own one each.
#pragma once

#include <QListWidget>
#include <QPushButton>

class PanelHost;
class PictureBox;

class PicturesList : public QWidget
{
    Q_OBJECT

public:
    // Reads the pictures folder. The host must outlive it.
    PicturesList(PanelHost& host, QWidget* parent);

    QListWidget* lstImages;
    PictureBox* imgPreview;
    QPushButton* AddBttn;

    // Selects the entry that equals the name, letter for letter; selects nothing when there is none.
    void selectPicture(const QString& name);
    // Empty when nothing is selected.
    QString selectedPicture() const;

    // What AddBttn does: asks for a file, copies it into the pictures folder and selects it. Errors as for
    // readFileBytes and writeFileBytes.
    void addPicture();

Q_SIGNALS:
    // An entry was selected, by the user or by the code.
    void pictureSelected(const QString& name);

private:
    void showSelected();

    PanelHost& m_host;
};

// The filter of every choice of a picture file. The dots before jpg and gif are left out deliberately.
QString pictureFileFilter();
// The path of a picture's file. A name with a colon is an absolute path, any other stands under pictures/; empty for a
// name that would lead out of that folder.
QString PicturePath(PanelHost& host, const QString& name);
