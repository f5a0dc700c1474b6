// File calls that do what other file calls do and keep the order: "create shop.xml", "reserve 0 to 12", "write 12",
// "flush", "close", "rename a to b", "flush folder templates". Folders and files are told by their last name. One kind
// of call can be made to fail.
#pragma once

#include "base/OperatingSystem.h"
#include "base/RuntimeError.h"

#include <QStringList>

#include <memory>
#include <optional>

class RecordingFileCalls : public FileCalls
{
public:
    std::unique_ptr<OpenFile> open(const QString& path, Access access) const override;
    void rename(const QString& from, const QString& to) const override;
    void flushFolder(const QString& folder) const override;

    std::optional<qint64> freeRoom(const QString& folder) const override
    {
        return free ? *free : m_calls->freeRoom(folder);
    }

    // What freeRoom answers, when it is set: nothing stands for a file system that does not answer.
    std::optional<std::optional<qint64>> free;

    // From now on, a call whose line begins so raises that error instead of being done.
    void failAtCall(const QString& beginning, ErrorNumber number);
    QStringList takeCalls() const { return std::exchange(m_log->calls, {}); }

private:
    // Shared with the open files.
    struct Log
    {
        // Keeps the line, and raises what was asked for.
        void note(const QString& call);
        void failIfAsked(const QString& call) const;

        QStringList calls;
        QString failingCall;
        std::optional<ErrorNumber> error;
    };
    class File;

    std::unique_ptr<FileCalls> m_calls = systemFileCalls();
    std::shared_ptr<Log> m_log = std::make_shared<Log>();
};
