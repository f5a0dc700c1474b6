#include "support/RecordingFileCalls.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString lastName(const QString& path)
{
    return QDir::cleanPath(path).section(u'/', -1);
}

QString accessWord(FileCalls::Access access)
{
    switch (access) {
    case FileCalls::Access::Read:
        return u"read "_s;
    case FileCalls::Access::Overwrite:
        return u"overwrite "_s;
    case FileCalls::Access::Create:
        return u"create "_s;
    case FileCalls::Access::Append:
        return u"append to "_s;
    }
    return {};
}

} // namespace

class RecordingFileCalls::File : public OpenFile
{
public:
    File(std::unique_ptr<OpenFile> file, std::shared_ptr<Log> log) : m_file(std::move(file)), m_log(std::move(log)) {}

    qint64 size() override { return m_file->size(); }
    qint64 read(char* bytes, qint64 count) override { return m_file->read(bytes, count); }
    void write(QByteArrayView bytes) override
    {
        m_log->note(u"write %1"_s.arg(bytes.size()));
        m_file->write(bytes);
    }
    void seek(qint64 place) override
    {
        m_log->note(u"seek %1"_s.arg(place));
        m_file->seek(place);
    }
    void reserve(qint64 oldSize, qint64 newSize) override
    {
        m_log->note(u"reserve %1 to %2"_s.arg(oldSize).arg(newSize));
        m_file->reserve(oldSize, newSize);
    }
    void cut(qint64 size) override
    {
        m_log->note(u"cut %1"_s.arg(size));
        m_file->cut(size);
    }
    void flush() override
    {
        m_log->note(u"flush"_s);
        m_file->flush();
    }
    void close() override
    {
        m_log->note(u"close"_s);
        m_file->close();
    }

private:
    std::unique_ptr<OpenFile> m_file;
    std::shared_ptr<Log> m_log;
};

void RecordingFileCalls::Log::note(const QString& call)
{
    calls << call;
    failIfAsked(call);
}

void RecordingFileCalls::Log::failIfAsked(const QString& call) const
{
    if (error && call.startsWith(failingCall)) {
        throw RuntimeError(*error);
    }
}

std::unique_ptr<OpenFile> RecordingFileCalls::open(const QString& path, Access access) const
{
    // Only a file that can be opened is noted.
    const QString call = accessWord(access) + lastName(path);
    m_log->failIfAsked(call);
    std::unique_ptr<OpenFile> file = m_calls->open(path, access);
    m_log->note(call);
    return std::make_unique<File>(std::move(file), m_log);
}

void RecordingFileCalls::rename(const QString& from, const QString& to) const
{
    m_log->note(u"rename %1 to %2"_s.arg(lastName(from), lastName(to)));
    m_calls->rename(from, to);
}

void RecordingFileCalls::flushFolder(const QString& folder) const
{
    m_log->note(u"flush folder "_s + lastName(folder));
    m_calls->flushFolder(folder);
}

void RecordingFileCalls::failAtCall(const QString& beginning, ErrorNumber number)
{
    m_log->failingCall = beginning;
    m_log->error = number;
}
