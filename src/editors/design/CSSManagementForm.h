// The dialog around the style editor, for one style. It stands over its window and does not block its caller; it goes
// when it is closed. The style is written by OkBtn alone. OpenStyle makes it.
#pragma once

#include <QDialog>

#include <memory>

class CSSClass;
class FontAndColorEditorPanel;
class PanelHost;
class ShopClass;

class CSSManagementForm : public QDialog
{
    Q_OBJECT

public:
    // The host must outlive it.
    CSSManagementForm(PanelHost& host, QWidget* parent);

    FontAndColorEditorPanel* FontAndColorEditorPanel1;

    // Binds the panel to the style, gives it the title and shows the dialog.
    void openOn(const std::shared_ptr<CSSClass>& style, const QString& title);

private:
    std::shared_ptr<CSSClass> m_style;
};

// The shop's style of that name. One that is missing is made, with nothing but its name and a new style's two colours.
std::shared_ptr<CSSClass> styleNamed(ShopClass& shop, const QString& styleName);

// Opens the style of that name of the session's shop under that title, on the window of the parent. A style that is
// missing is made first and stays, whatever button closes the dialog. The dialog's finished signal tells its end.
CSSManagementForm* OpenStyle(PanelHost& host, QWidget* parent, const QString& title, const QString& styleName);
