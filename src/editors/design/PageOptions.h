// The controls that a manager's table asks for: check boxes, texts, image slots, page lists and styles, in groups. The
// options are a buffer, read by load and written by save; slots, lists and styles have dialogs of their own, which
// write to the shop when they are confirmed. PageManager owns one.
#pragma once

#include "design/DesignOptions.h"
#include "editors/design/ManagerTables.h"
#include "look/Section.h"

#include <QWidget>

#include <memory>
#include <vector>

class PanelHost;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class ShopDesignClass;
class clsSelectedImage;
class frmSelectedCustomPages;

class PageOptions : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it, and the table too.
    PageOptions(PanelHost& host, const ManagerTable& table, QWidget* parent);

    void load();
    void save(ShopDesignClass& design) const;

    // Puts a further widget below the groups, ahead of the styles. Its children take the tab key in the order in which
    // they were made.
    void addAheadOfStyles(QWidget* widget, int stretch = 0);

private:
    void makeGroup(const OptionGroup& group);
    void makeImagesAndLists();
    void makeStyles();
    QVBoxLayout* newGroup(const QString& caption, Section::Line line);
    QLabel* addChoice(QGridLayout* grid, QPushButton* button);
    QPushButton* namedButton(const char* name, const QString& caption);

    void openSlot(const SlotRow& row);
    void openList(const ListRow& row);
    void openStyle(const StyleRow& row);
    void showChoices();
    std::shared_ptr<clsSelectedImage> imageOf(const SlotRow& row) const;

    PanelHost& m_host;
    const ManagerTable& m_table;
    QVBoxLayout* m_column;
    QWidget* m_styleGroup = nullptr;
    frmSelectedCustomPages* m_pagesForm = nullptr;
    // In the order of the table's rows.
    std::vector<std::pair<DesignOption, QCheckBox*>> m_switches;
    std::vector<std::pair<DesignOption, QLineEdit*>> m_texts;
    std::vector<QLabel*> m_slotLabels;
    std::vector<QLabel*> m_listLabels;
    std::vector<QPushButton*> m_styleButtons;
};
