// Chooses the pages that a menu shows: two check boxes for the two pages that every shop has, and a list of the shop's
// custom pages. frmSelectedCustomPages owns the one of a manager.
#pragma once

#include "base/KeyedCollection.h"

#include <QListWidget>
#include <QWidget>

#include <array>
#include <memory>

class CustomPageClass;
class QCheckBox;
class clsSelectedCustomPages;

class ucSelectCustPage : public QWidget
{
    Q_OBJECT

public:
    explicit ucSelectCustPage(QWidget* parent);

    // Several choices (the default), or one across the boxes and the list. What is chosen already stays.
    void SetMultiSelect(bool several);

    // Shows the selection among the pages. A name that is the name of no page marks nothing. When one choice is
    // allowed, only the first name counts.
    void SetActiveObject(const std::shared_ptr<clsSelectedCustomPages>& selection,
                         const KeyedCollection<std::shared_ptr<CustomPageClass>>& pages);
    // Writes what is chosen to the selection: the boxes first, then the list from top to bottom, in whatever order the
    // user chose. ErrorNumber::DuplicateKey when a page of the list bears the name of a chosen box.
    void SaveActiveObject();

private:
    void mark(const QString& name);
    void chosen(QCheckBox* box, QListWidgetItem* entry);

    std::array<QCheckBox*, 2> chkSelectPage{};
    QListWidget* lstSelectedPages;
    std::shared_ptr<clsSelectedCustomPages> m_selection;
    bool m_several = true;
    bool m_filling = false; // marks set by the program start nothing
};
