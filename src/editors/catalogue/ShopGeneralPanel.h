// The shop's name, currency, description and the countries that it delivers to. The window owns it.
#pragma once

#include "editors/Panel.h"

#include <memory>

class PanelHost;
class QLabel;
class QLineEdit;
class QListWidget;
class ShopClass;
class TextArea;

class ShopGeneralPanel : public Panel
{
    Q_OBJECT

public:
    // The host must outlive it.
    ShopGeneralPanel(PanelHost& host, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override;
    void ClearActiveObject() override;

private:
    void checkAll(Qt::CheckState state);

    PanelHost& m_host;
    QLabel* IdLbl;
    QLineEdit* ShopNameTxt;
    QLineEdit* txtCurrency;
    TextArea* ShopDescriptionTxt;
    QListWidget* lstCountries;
    std::shared_ptr<ShopClass> m_shop;
};
