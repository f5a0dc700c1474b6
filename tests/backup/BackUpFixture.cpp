#include "backup/BackUpFixture.h"

#include <QDirIterator>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

QString eventName(const char* name, bool argument)
{
    return QLatin1String(name) + (argument ? "(True)"_L1 : "(False)"_L1);
}

} // namespace

QByteArray referenceShop()
{
    return "<Tarnwick><Shop><Version>1.2.0</Version><Name>Cups</Name></Shop></Tarnwick>";
}

QByteArray referencePicture()
{
    QByteArray bytes;
    for (int i = 0; i < 3 * 256; ++i) {
        bytes.append(static_cast<char>(i));
    }
    return bytes;
}

QByteArray referencePage()
{
    return QByteArray("<!--1.2.0-->\r\n<h1><!--:shop_name:--></h1>\r\n").repeated(20);
}

QString referencePath(const QString& name)
{
    return QStringLiteral(TARNWICK_SOURCE_DIR "/tests/data/packed/") + name;
}

QByteArray referenceBytes(const QString& name)
{
    return fileBytes(referencePath(name));
}

QByteArray noise(qsizetype size, quint32 seed)
{
    QRandomGenerator generator(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char& byte : bytes) {
        byte = static_cast<char>(generator.generate());
    }
    return bytes;
}

QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> found;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        found.insert(path.sliced(folder.size() + 1), fileBytes(path));
    }
    return found;
}

QMap<QString, QByteArray> withoutBackUps(QMap<QString, QByteArray> files)
{
    files.removeIf([](const auto& file) { return file.key().startsWith(u"backups/"); });
    return files;
}

BackUpTest::BackUpTest()
{
    listenTo(packer);
}

void BackUpTest::useReferenceShop()
{
    writeFile(files.path(u"shop.xml"_s), referenceShop());
    writeFile(files.path(u"pictures/cup.png"_s), referencePicture());
    writeFile(files.path(u"templates/main.html"_s), referencePage());
}

void BackUpTest::listenTo(clsPacker& source)
{
    source.Working = [this](bool done) { events << eventName("Working", done); };
    source.VersionError = [this] { events << u"VersionError"_s; };
    source.ReadError = [this](int code) { events << u"ReadError(%1)"_s.arg(code); };
    source.WriteError = [this] { events << u"WriteError"_s; };
}

QStringList BackUpTest::takeEvents()
{
    return std::exchange(events, {});
}

QString BackUpTest::packedFile(const QByteArray& bytes)
{
    QString path = files.path(u"given.kvb"_s);
    writeFile(path, bytes);
    return path;
}

QString onDisk(const QString& fileSpec)
{
    return QString(fileSpec).replace(u'\\', u'/');
}
