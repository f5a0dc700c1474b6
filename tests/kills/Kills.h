// The parent: lets an owner work, kills the program at a moment of its choice, looks at the folder, and opens it again.
#pragma once

#include "monkey/Dice.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>

class QProcess;

class Kills
{
public:
    // The program is this one, which the days are started with. All days work on one folder.
    Kills(const QString& program, const QString& folder, std::uint32_t seed);

    // False when something was lost that should not have been; it is told then.
    bool killOnce();
    void showFigures() const;

private:
    // What a day has told before it was killed.
    struct Told
    {
        int kept = 0; // the number that the disk must hold
        int done = 0; // the last one in the shop
        bool isSaving = false;
        QByteArray complaint;
    };

    void fillFolder() const;
    Told toldBy(const QByteArray& output) const;
    // Which of the two files are whole, by name.
    QStringList wholeFiles() const;
    bool complain(const QByteArray& what, const QByteArray& output) const;

    QString m_program;
    QString m_folder;
    Dice m_dice;
    int m_number = 0; // of the last piece of work that was found again

    int m_kills = 0;
    int m_duringStart = 0;
    int m_duringSave = 0;
    int m_offered = 0;
    int m_brokenShopFiles = 0;
    int m_lostNothing = 0;
    int m_mostLost = 0; // pieces of work
};
