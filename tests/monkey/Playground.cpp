#include "Playground.h"

#include "CarefulOwner.h"
#include "OddTexts.h"
#include "model/ShopSession.h"
#include "model/shop_file/RandomShop.h"
#include "model/shop_file/ShopFile.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

void writeRandomShop(const ApplicationFolder& folder, unsigned seed)
{
    RecordingPrompts prompts;
    const FixedClock clock(QDate(2026, 7, 15));
    ShopSession session(folder, prompts, clock);
    session.shop = std::make_shared<ShopClass>(session.services);
    RandomShop(seed).fill(session);
    writeShopFile(session);
}

} // namespace

Playground::Playground(const QString& root, Dice& dice, bool isCareful)
    : m_isCareful(isCareful), m_root(root), m_shop(root + u"/a/b/c/d/shop"_s), m_files(root + u"/a/b/c/d/files/"_s)
{
    if (!QFile::exists(folder().countriesFile())) {
        copySampleShop();
        makeOddFiles();
        if (!m_isCareful) {
            changeShop(dice);
        }
    }
}

void Playground::copySampleShop() const
{
    const QString sample = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");
    QDirIterator entries(sample, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString target = m_shop + u'/' + entries.next().mid(sample.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(entries.filePath(), target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
}

void Playground::makeOddFiles() const
{
    QDir().mkpath(m_files);
    QDir().mkpath(settings());
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    picture.save(m_files + u"blue.png"_s);
    picture.save(m_files + u"odd name, with & and <.JPG"_s, "JPG");
    writeFile(m_files + u"no_picture.gif"_s, "GIF89a");
    writeFile(m_files + u"empty.bmp"_s, "");
    writeFile(m_files + u"text.kvb"_s, "not packed");
}

void Playground::changeShop(Dice& dice) const
{
    constexpr auto emptyShop =
        "<Tarnwick><Shop><Version>1.2.0</Version><Name/><SelectedCountries/><ShopDesign/></Shop></Tarnwick>";
    switch (dice.below(20)) {
    case 0:
        QFile::remove(folder().shopFile());
        break;
    case 1:
        writeFile(folder().shopFile(), "<Tarnwick><Shop>");
        break;
    case 2:
        writeFile(folder().shopFile(), emptyShop);
        break;
    case 3:
        writeFile(folder().countriesFile(), "");
        break;
    case 4:
        QDir(folder().picturesFolder()).removeRecursively();
        break;
    case 5:
        QDir(folder().templatesFolder()).removeRecursively();
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        writeRandomShop(folder(), static_cast<unsigned>(dice.below(10000)));
        break;
    default:
        break; // the sample shop
    }
}

QString Playground::oneOf(Dice& dice, const QString& folder) const
{
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    return names.isEmpty() ? QString() : folder + dice.pick(names);
}

// A backup that the run has made, at times with its end cut off.
QString Playground::packedFile(Dice& dice) const
{
    QString backup = oneOf(dice, folder().backupsFolder());
    if (backup.isEmpty() || m_isCareful || dice.chance(70)) {
        return backup;
    }
    QString cut = m_files + u"cut.kvb"_s;
    const QByteArray bytes = fileBytes(backup);
    writeFile(cut, bytes.first(dice.below(static_cast<int>(bytes.size()) + 1)));
    return cut;
}

QString Playground::chosenFile(Dice& dice, const QString& filter)
{
    switch (m_isCareful ? 5 : dice.below(20)) {
    case 0:
    case 1:
        return {};
    case 2:
        return m_files + (dice.chance(50) ? u"gone"_s : QString());
    case 3:
        return oneOf(dice, m_files);
    case 4:
        return oneOf(dice, folder().picturesFolder());
    default:
        break;
    }
    if (filter.contains(u".kvb"_s)) {
        return packedFile(dice);
    }
    if (filter.contains(u".txt"_s)) {
        QString path = m_files + u"products.txt"_s;
        writeFile(path, m_isCareful ? fittingImportFile(dice) : oddImportFile(dice));
        return path;
    }
    return m_isCareful ? m_files + u"blue.png"_s : oneOf(dice, m_files);
}
