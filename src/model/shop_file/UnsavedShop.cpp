#include "model/shop_file/UnsavedShop.h"

#include "base/FileBytes.h"
#include "base/XmlFile.h"
#include "model/shop_file/ShopFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QScopeGuard>

#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Looking at the shop takes at most one part in so many of the owner's time.
constexpr qint64 partsOfTime = 100;

const QString notWritten = QStringLiteral("shop.unsaved.xml was not written");

} // namespace

UnsavedShop::TextMark::TextMark(QByteArrayView text) : size(text.size()), hash(qHash(text)) {}

UnsavedShop::UnsavedShop(ShopSession& session, Window window, std::unique_ptr<FileCalls> calls)
    : m_session(session), m_window(window), m_calls(std::move(calls))
{
}

// At the start ------------------------------------------------------------------------------------------------------

bool UnsavedShop::askToOpen()
{
    if (m_window == Window::Second || !QFileInfo::exists(m_session.folder.unsavedShopFile())) {
        return false;
    }
    m_isOpened =
        trapped(u"shop.unsaved.xml is set aside"_s, [this] { readToItsEnd(); }) &&
        m_session.prompts.askYesNo(applicationTitle(),
                                   u"The program ended before the last changes were saved. Open the shop with them?"_s);
    if (!m_isOpened) {
        setAside();
    }
    return m_isOpened;
}

// In a session of its own, so that nothing of a file that fails half-way stays in the real one.
void UnsavedShop::readToItsEnd() const
{
    ShopSession trial(m_session.folder, m_session.prompts, m_session.clock);
    trial.log.mute();
    trial.callbacks.SaveShop = [] {};
    XmlFile file;
    file.parse(readFileBytes(m_session.folder.unsavedShopFile(), *m_calls));
    if (!readShop(trial, file)) {
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"It holds no shop"_s);
    }
    trial.registerShop();
}

void UnsavedShop::setAside()
{
    trapped(u"shop.unsaved.xml stays where it is"_s,
            [this] { m_calls->rename(m_session.folder.unsavedShopFile(), m_session.folder.oldUnsavedShopFile()); });
}

void UnsavedShop::shopIsReadFrom(QByteArrayView bytes)
{
    (m_isOpened ? m_inItsFile : m_inShopFile) = TextMark(bytes);
}

// A file may spell the same shop in another way, so it is the shop's own text that later ones are held against.
void UnsavedShop::begin()
{
    m_keeps = m_window == Window::First;
    if (m_keeps && m_known == TextMark()) {
        try {
            m_known = TextMark(textNow());
        } catch (const RuntimeError&) {
            // The first attempt to write it will tell.
        } catch (const std::bad_alloc&) {
            // As it will of this.
        }
    }
}

// While the owner works ---------------------------------------------------------------------------------------------

void UnsavedShop::keep()
{
    const qint64 start = m_session.clock.steadyTime();
    if (!m_keeps || start < m_nextLook) {
        return;
    }
    trapped(notWritten, [&] {
        const QByteArray text = lookedAt(start);
        const TextMark mark(text);
        if (mark != m_known) {
            write(text, mark);
        }
    });
}

void UnsavedShop::keepAheadOfSave()
{
    if (!m_keeps) {
        return;
    }
    trapped(notWritten, [this] {
        const QByteArray text = textNow();
        const TextMark mark(text);
        if (mark != m_inShopFile && mark != m_inItsFile) {
            makeSureOfRoomForBoth(text.size());
            write(text, mark);
        }
    });
}

// A look that fails has taken its time, too.
QByteArray UnsavedShop::lookedAt(qint64 start)
{
    const auto putOff = qScopeGuard([&] {
        const qint64 end = m_session.clock.steadyTime();
        m_nextLook = end + partsOfTime * (end - start);
    });
    return textNow();
}

QByteArray UnsavedShop::textNow() const
{
    return shopFileBytes(currentShop(m_session.services), Unwritable::IsLeftEmpty);
}

void UnsavedShop::makeSureOfRoomForBoth(qsizetype size) const
{
    const std::optional<qint64> room = m_calls->freeRoom(m_session.folder.path());
    if (room && *room < 2 * size) {
        throw RuntimeError(ErrorNumber::DiskFull);
    }
}

void UnsavedShop::write(const QByteArray& text, const TextMark& mark)
{
    replaceFileDurably(m_session.folder.unsavedShopFile(), text, *m_calls);
    m_known = mark;
    m_inItsFile = mark;
}

void UnsavedShop::shopWasSaved(QByteArrayView bytes)
{
    if (m_window == Window::First) {
        m_known = TextMark(bytes);
        m_inShopFile = m_known;
        remove();
    }
}

void UnsavedShop::giveUp()
{
    m_keeps = false;
    if (m_window == Window::First) {
        remove();
    }
}

void UnsavedShop::remove()
{
    const QString path = m_session.folder.unsavedShopFile();
    QFile::remove(path + ".new"_L1); // left there when the program was killed while it wrote
    m_inItsFile = TextMark();
    trapped(u"shop.unsaved.xml was not removed"_s, [&] {
        if (!QFileInfo::exists(path)) {
            return;
        }
        if (!QFile::remove(path)) {
            failAt(ErrorNumber::PermissionDenied, path);
        }
        // Else a cut of power might bring it back, older than the shop file.
        m_calls->flushFolder(m_session.folder.path());
    });
}

bool UnsavedShop::trapped(const QString& failure, const std::function<void()>& work)
{
    const auto tell = [&](const RuntimeError& error) {
        try {
            m_session.log.WriteLoadLog(failure + ": "_L1 + error.description());
        } catch (const RuntimeError&) {
            // A full disk takes no line either, and what is kept here must not end the program.
        }
    };
    try {
        work();
        return true;
    } catch (const RuntimeError& error) {
        tell(error);
    } catch (const std::bad_alloc&) {
        tell(RuntimeError(ErrorNumber::OutOfMemory));
    }
    return false;
}
