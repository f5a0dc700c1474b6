// The folder of the running program, the root of all that belongs to one shop. A value given at start: the program
// takes the folder that it runs from, a test a temporary one.
#pragma once

#include <QString>

class ApplicationFolder
{
public:
    explicit ApplicationFolder(const QString& path);

    const QString& path() const { return m_path; }
    QString shopFile() const;
    // What was not saved yet, and what of it was set aside.
    QString unsavedShopFile() const;
    QString oldUnsavedShopFile() const;
    // Marks the folder as in use while the program runs.
    QString runningFile() const;
    QString countriesFile() const;
    QString loadLogFile() const;
    QString uploadLogFile() const;
    // Folders, with the trailing separator.
    QString templatesFolder() const;
    QString picturesFolder() const;
    QString backupsFolder() const;
    // The file of that name under pictures/. ErrorNumber::FileNotFound for a name that would lead out of that folder:
    // it is treated like a file that is not there.
    QString pictureFile(const QString& name) const;

private:
    QString m_path; // without a trailing separator
};
