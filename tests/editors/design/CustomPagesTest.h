// The fixture of the tests with custom pages: a shop with the pages "About", "Delivery" and "Care", and their manager.
#pragma once

#include "DesignTest.h"
#include "design/CustomPageClass.h"
#include "design/clsSelectedCustomPages.h"

#include <QListWidget>

class CustomPages : public DesignTest
{
protected:
    void SetUp() override;

    QListWidget* list() const { return in<QListWidget>("CustomPagesListCtl"); }
    QLineEdit* nameField() const { return in<QLineEdit>("PageNameTextCtl"); }
    QPlainTextEdit* textField() const { return in<QPlainTextEdit>("PageContentTextCtl"); }

    // Clicks the row of a page, 0-based.
    void select(int row) const;
    QStringList listed() const;
    // The names of the shop's pages, each of which is found under its name.
    QStringList pages() const;
    static QStringList namesOf(const clsSelectedCustomPages& selection);

    const QString title = QStringLiteral("Ambrel eCommerce Software");
};
