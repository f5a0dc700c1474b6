#include "editors/design/pickers/ucSelectCustPage.h"

#include "design/CustomPageClass.h"
#include "design/PageTable.h"
#include "design/clsSelectedCustomPages.h"
#include "editors/WholeRowTicks.h"
#include "look/Measures.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucSelectCustPage::ucSelectCustPage(QWidget* parent) : QWidget(parent)
{
    auto* Frame1 = new QGroupBox(u"List of custom pages"_s, this);
    Frame1->setObjectName(u"Frame1"_s);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(Frame1);

    auto* column = new QVBoxLayout(Frame1);
    column->setContentsMargins(Measure::Section, Measure::Gap, Measure::Section, Measure::Section);
    column->setSpacing(Measure::Gap);
    for (std::size_t i = 0; i < FixedPageNames.size(); ++i) {
        auto* box = new QCheckBox(FixedPageNames[i], Frame1);
        box->setObjectName(u"chkSelectPage%1"_s.arg(i));
        chkSelectPage[i] = box;
        column->addWidget(box);
        connect(box, &QCheckBox::toggled, this, [this, box](bool on) {
            if (on) {
                chosen(box, nullptr);
            }
        });
    }
    lstSelectedPages = new QListWidget(Frame1);
    lstSelectedPages->setObjectName(u"lstSelectedPages"_s);
    lstSelectedPages->setAccessibleName(u"Custom pages"_s);
    lstSelectedPages->setSpacing(2);
    lstSelectedPages->setItemDelegate(new WholeRowTicks(lstSelectedPages));
    column->addWidget(lstSelectedPages, 1);
    connect(lstSelectedPages, &QListWidget::itemChanged, this, [this](QListWidgetItem* entry) {
        if (entry->checkState() == Qt::Checked) {
            chosen(nullptr, entry);
        }
    });
}

void ucSelectCustPage::SetMultiSelect(bool several)
{
    m_several = several;
}

void ucSelectCustPage::SetActiveObject(const std::shared_ptr<clsSelectedCustomPages>& selection,
                                       const KeyedCollection<std::shared_ptr<CustomPageClass>>& pages)
{
    const QScopedValueRollback filling(m_filling, true);
    m_selection = selection;
    lstSelectedPages->clear();
    for (const std::shared_ptr<CustomPageClass>& page : pages) {
        auto* entry = new QListWidgetItem(page->pageName, lstSelectedPages);
        entry->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        entry->setCheckState(Qt::Unchecked);
    }
    for (QCheckBox* box : chkSelectPage) {
        box->setChecked(false);
    }
    for (const QString& name : selection->selectedPages()) {
        mark(name);
        if (!m_several) {
            break;
        }
    }
}

void ucSelectCustPage::mark(const QString& name)
{
    for (QCheckBox* box : chkSelectPage) {
        if (box->text() == name) {
            box->setChecked(true);
            return;
        }
    }
    for (int row = 0; row < lstSelectedPages->count(); ++row) {
        if (lstSelectedPages->item(row)->text() == name) {
            lstSelectedPages->item(row)->setCheckState(Qt::Checked);
        }
    }
}

void ucSelectCustPage::chosen(QCheckBox* box, QListWidgetItem* entry)
{
    if (m_several || m_filling) {
        return;
    }
    const QScopedValueRollback filling(m_filling, true);
    for (QCheckBox* other : chkSelectPage) {
        if (other != box) {
            other->setChecked(false);
        }
    }
    for (int row = 0; row < lstSelectedPages->count(); ++row) {
        if (lstSelectedPages->item(row) != entry) {
            lstSelectedPages->item(row)->setCheckState(Qt::Unchecked);
        }
    }
}

void ucSelectCustPage::SaveActiveObject()
{
    m_selection->Clear();
    for (const QCheckBox* box : chkSelectPage) {
        if (box->isChecked()) {
            m_selection->Add(box->text());
        }
    }
    for (int row = 0; row < lstSelectedPages->count(); ++row) {
        if (lstSelectedPages->item(row)->checkState() == Qt::Checked) {
            m_selection->Add(lstSelectedPages->item(row)->text());
        }
    }
}
