// What the owner made and did not save yet, kept in shop.unsaved.xml beside the shop file, so that a crash or a cut of
// power takes little of it. The window owns one and calls it whenever the shop may have changed. It writes when the
// shop's text differs from what is on the disk already, and so seldom that making the text takes a hundredth of the
// time. Whatever fails here is a line in the log, and the program goes on. In a window that opened the folder second it
// does nothing at all: the file is the first one's.
#pragma once

#include "base/OperatingSystem.h"
#include "model/ShopSession.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>
#include <memory>

class UnsavedShop
{
public:
    enum class Window { First, Second };

    // The session outlives it.
    UnsavedShop(ShopSession& session, Window window, std::unique_ptr<FileCalls> calls = systemFileCalls());

    // At the start: when there is an unsaved shop, asks whether to open it. True: it is to be read in the place of the
    // shop file. Otherwise what there is was set aside as shop.unsaved.old.xml, without a question when it cannot be
    // read to its end.
    bool askToOpen();
    // The shop is about to be read from these bytes of a file.
    void shopIsReadFrom(QByteArrayView bytes);
    // The shop was read whole, and nobody has touched it yet; from now on it is kept.
    void begin();

    // The shop may have changed. It is looked at when the last look lies back a hundred times what that took, and
    // written when it changed.
    void keep();
    // The shop file is about to be overwritten. Whatever the age, the shop is written unless one of the two files holds
    // it already or the disk lacks the room for both.
    void keepAheadOfSave();

    // The shop file holds these bytes now: the unsaved shop is of no more use and goes.
    void shopWasSaved(QByteArrayView bytes);
    // The owner wants none of it, or has another shop on the disk: it goes, and nothing more is kept.
    void giveUp();

private:
    // Tells a text from others; the text itself would need as much room as the shop.
    struct TextMark
    {
        TextMark() = default;
        explicit TextMark(QByteArrayView text);
        bool operator==(const TextMark&) const = default;

        qsizetype size = -1;
        std::size_t hash = 0;
    };

    void readToItsEnd() const;
    void setAside();
    // The shop's text. `start` is when the look began; it puts off the next one.
    QByteArray lookedAt(qint64 start);
    QByteArray textNow() const;
    void makeSureOfRoomForBoth(qsizetype size) const;
    void write(const QByteArray& text, const TextMark& mark);
    void remove();
    // Runs work(). A failure becomes a line in the log behind those words, and gives false.
    bool trapped(const QString& failure, const std::function<void()>& work);

    ShopSession& m_session;
    Window m_window;
    std::unique_ptr<FileCalls> m_calls;
    bool m_isOpened = false; // the shop was read from the unsaved one
    bool m_keeps = false;
    TextMark m_known;      // the shop as it was last read or written
    TextMark m_inShopFile; // the bytes of shop.xml, none when they are not known
    TextMark m_inItsFile;  // the bytes of shop.unsaved.xml, none when there is no such file
    qint64 m_nextLook = 0; // by the clock's steady time
};
