// The folder that one run plays in: a fresh copy of the sample shop, at times with another shop file in it or with
// parts missing, and beside it files that a person might choose by mistake. It lies some levels deep, so that a path
// that leads out of it still ends in the run's own folder.
#pragma once

#include "Dice.h"
#include "base/ApplicationFolder.h"

#include <QString>

class Playground
{
public:
    // Below that folder. A shop that lies there already stays as it is.
    Playground(const QString& root, Dice& dice, bool isCareful);

    ApplicationFolder folder() const { return ApplicationFolder(m_shop); }
    // Where a run leaves what the shop was when the unsaved shop was written last.
    QString keptModel() const { return m_root + QStringLiteral("/kept_model.txt"); }
    // A folder for the user's settings.
    QString settings() const { return m_root + QStringLiteral("/settings"); }
    // What a person answers to the choice of a file: one that fits what is asked for, another one, a folder, one that
    // is not there, nothing. Files for an import are made new each time.
    QString chosenFile(Dice& dice, const QString& filter);

private:
    void copySampleShop() const;
    void makeOddFiles() const;
    void changeShop(Dice& dice) const;
    QString packedFile(Dice& dice) const;
    QString oneOf(Dice& dice, const QString& folder) const;

    bool m_isCareful; // nothing is missing, and every file fits
    QString m_root;
    QString m_shop;
    QString m_files;
};
