// The pictures of the shop as thumbnails with a filter, the chosen one beside them with its size, and the button that
// adds one from elsewhere; files can be dropped, too. The pickers of the images own one each.
#pragma once

#include <QWidget>

class PanelHost;
class PictureBox;
class PictureGrid;
class QLineEdit;
class QPushButton;
class WordLabel;

class PicturesList : public QWidget
{
    Q_OBJECT

public:
    // Reads the pictures folder. The host must outlive it.
    PicturesList(PanelHost& host, QWidget* parent);

    // How large a dialog around the list is, on the screen of the widget that it opens over.
    static QSize dialogSize(const QWidget& over);

    PictureGrid* lstImages;
    PictureBox* imgPreview;
    QPushButton* AddBttn;

    // Selects the entry that equals the name, letter for letter; selects nothing when there is none.
    void selectPicture(const QString& name);
    // Empty when nothing is selected.
    QString selectedPicture() const;
    // Whether a slot can take the selected picture: its size can be read. So it can when nothing is selected.
    bool isSelectionUsable() const { return m_isSelectionUsable; }
    // Turns the list and its filter on or off.
    void setChoosable(bool isChoosable);

    // What AddBttn does: asks for a file and adds it.
    void addPicture();
    // Copies the files into the pictures folder, asking ahead of overwriting one, and selects each. One that cannot be
    // copied is told in a box and left out.
    void addFiles(const QStringList& files);

Q_SIGNALS:
    // An entry was selected, by the user or by the code; or a picture was added that was selected already.
    void pictureSelected(const QString& name);
    // What is shown beside the list is another picture now, or none, or another file of the same name. It comes ahead
    // of pictureSelected.
    void selectionShown();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void showSelected();
    void showWords();

    PanelHost& m_host;
    QLineEdit* txtFilter;
    WordLabel* lblName;
    WordLabel* lblSize;
    bool m_isSelectionUsable = true;
};
