// What the tests of the packed file share: an application folder with a shop, a packer of version 1.2.0 whose events
// are kept, and the packed files in tests/data/packed, which a script makes.
#pragma once

#include "backup/clsPacker.h"
#include "support/FileSizeLimit.h"
#include "support/TestSupport.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

// The contents of the files in the reference files.
QByteArray referenceShop();
QByteArray referencePicture();
QByteArray referencePage();

QString referencePath(const QString& name);
QByteArray referenceBytes(const QString& name);

// Bytes that do not deflate; the same for the same seed.
QByteArray noise(qsizetype size, quint32 seed);

// All files below a folder, hidden ones too, by their relative paths.
QMap<QString, QByteArray> filesBelow(const QString& folder);

// The same files without those in backups/.
QMap<QString, QByteArray> withoutBackUps(QMap<QString, QByteArray> files);

class BackUpTest : public testing::Test
{
protected:
    BackUpTest();

    // The files of the reference files, on disk.
    void useReferenceShop();
    // Notes the events of a packer in `events`: "Working(False)", "ReadError(2)", "WriteError".
    void listenTo(clsPacker& source);
    QStringList takeEvents();
    // Writes bytes as a packed file and tells its path.
    QString packedFile(const QByteArray& bytes);

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)}; // 14:03:05
    clsPacker packer{files.folder(), prompts, clock, QStringLiteral("1.2.0")};
    QStringList events;
};

// The relative path on disk of a path in a packed file.
QString onDisk(const QString& fileSpec);
