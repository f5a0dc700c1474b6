// Edits one style: colours, font and emphasis. It is a view with a buffer: what is picked stays here until
// SaveActiveObject. CSSManagementForm owns one, and the footer's panel has one standing on it.
//
// Colours are texts and are kept as they come until the user picks another: the decimal numbers of a new style ("0",
// "255") survive being looked at. A font or size that the lists do not hold is added to them for that one showing.
#pragma once

#include <QGroupBox>
#include <QWidget>

class CSSClass;
class PanelHost;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

class FontAndColorEditorPanel : public QWidget
{
    Q_OBJECT
    // The names, with their spelling, are those by which the panel's users address them.
    Q_PROPERTY(QString ObjectTitle READ ObjectTitle WRITE setObjectTitle)
    Q_PROPERTY(QString ObjectForeGroundColor READ ObjectForeGroundColor WRITE setObjectForeGroundColor)
    Q_PROPERTY(QString ObjectBackGroundColor READ ObjectBackGroundColor WRITE setObjectBackGroundColor)
    Q_PROPERTY(QString ObjectFontName READ ObjectFontName WRITE setObjectFontName)
    Q_PROPERTY(QString ObjectFontSize READ ObjectFontSize WRITE setObjectFontSize)
    Q_PROPERTY(bool ObjectFontBold READ ObjectFontBold WRITE setObjectFontBold)
    Q_PROPERTY(bool ObjectFontCursiv READ ObjectFontCursiv WRITE setObjectFontCursiv)
    Q_PROPERTY(bool ObjectFontUnderline READ ObjectFontUnderline WRITE setObjectFontUnderline)
    Q_PROPERTY(bool ObjectFontLineTrough READ ObjectFontLineTrough WRITE setObjectFontLineTrough)

public:
    // The host must outlive it; its prompts choose the colours.
    FontAndColorEditorPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CSSClass& style);
    void SaveActiveObject(CSSClass& style) const;

    QString ObjectTitle() const;
    void setObjectTitle(const QString& title);
    QString ObjectForeGroundColor() const { return m_foreGround; }
    void setObjectForeGroundColor(const QString& colour);
    QString ObjectBackGroundColor() const { return m_backGround; }
    void setObjectBackGroundColor(const QString& colour);
    QString ObjectFontName() const;
    void setObjectFontName(const QString& name);
    QString ObjectFontSize() const;
    void setObjectFontSize(const QString& size);
    bool ObjectFontBold() const;
    void setObjectFontBold(bool on);
    bool ObjectFontCursiv() const;
    void setObjectFontCursiv(bool on);
    bool ObjectFontUnderline() const;
    void setObjectFontUnderline(bool on);
    bool ObjectFontLineTrough() const;
    void setObjectFontLineTrough(bool on);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeFontRow();
    void makeColourRow(PanelHost& host);
    void showColour(QPushButton* button, const QString& colour);
    void showSample();

    QGroupBox* Frame1;
    QComboBox* FontNameLst = nullptr;
    QComboBox* FontSizeLst = nullptr;
    QCheckBox* Check1 = nullptr; // bold
    QCheckBox* Check2 = nullptr; // italic
    QCheckBox* Check3 = nullptr; // underlined
    QCheckBox* Check4 = nullptr; // struck through
    QPushButton* ForeGroundColorBtn = nullptr;
    QPushButton* BackGroundColorBtn = nullptr;
    QLabel* SampleLbl = nullptr;
    QString m_foreGround;
    QString m_backGround;
};
