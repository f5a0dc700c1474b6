// The shop file. The bytes are a whole file.
//
// Promised: reading ends in a shop, or in no "Shop" element, or in a run-time error of the numbers listed here; a shop
// that was read and can be saved reads again, unless two texts that are keys have become one; and from the second save
// on the bytes stay the same.
#include "FuzzTarget.h"
#include "base/RuntimeError.h"
#include "base/XmlFile.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <optional>

namespace {

class NoPrompts : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override {}
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override
    {
        return PromptAnswer::Cancel;
    }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }
};

class FixedDay : public Clock
{
public:
    QDateTime now() const override { return {QDate(2024, 5, 15), QTime(12, 0)}; }
};

// What reading may end in.
constexpr std::array readErrors = {
    ErrorNumber::Overflow,     ErrorNumber::OutOfMemory,      ErrorNumber::TypeMismatch, ErrorNumber::OutOfStackSpace,
    ErrorNumber::ObjectNotSet, ErrorNumber::InvalidUseOfNull, ErrorNumber::DuplicateKey};
// What saving what was read may end in: a picture that is not there, or is no picture.
constexpr std::array saveErrors = {ErrorNumber::FileNotFound, ErrorNumber::InvalidArgument};

template <class Errors>
bool isOneOf(const Errors& errors, ErrorNumber number)
{
    return std::find(errors.begin(), errors.end(), number) != errors.end();
}

// Reads a shop into the session; false when the file has none. Errors as they come.
bool readBytes(ShopSession& session, const QByteArray& bytes)
{
    XmlFile file;
    file.parse(bytes);
    return readShop(session, file);
}

// Saves and reads again; the bytes, or nothing when that was not possible for a reason that is allowed.
std::optional<QByteArray> savedAndRead(ShopSession& session)
{
    QByteArray bytes;
    try {
        bytes = shopFileBytes(*session.shop);
    } catch (const RuntimeError& error) {
        promise(isOneOf(saveErrors, error.number()), "saving fails for a picture only");
        return std::nullopt;
    }
    try {
        promise(readBytes(session, bytes), "a saved file has a shop");
    } catch (const RuntimeError& error) {
        promise(error.number() == ErrorNumber::DuplicateKey, "a saved shop reads again");
        return std::nullopt;
    }
    return bytes;
}

void readAndSave(ShopSession& session, const QByteArray& bytes)
{
    try {
        if (!readBytes(session, bytes)) {
            return;
        }
    } catch (const RuntimeError& error) {
        promise(isOneOf(readErrors, error.number()), "reading fails with a known number");
        return;
    }
    try {
        session.registerShop();
    } catch (const RuntimeError& error) {
        promise(error.number() == ErrorNumber::DuplicateKey, "the tree fails for an id in two places only");
    }
    if (!savedAndRead(session)) {
        return;
    }
    const std::optional<QByteArray> second = savedAndRead(session);
    const std::optional<QByteArray> third = second ? savedAndRead(session) : std::nullopt;
    promise(second && third && *second == *third, "saving settles");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir directory; // for the log
    NoPrompts prompts;
    const FixedDay clock;
    ShopSession session(ApplicationFolder(directory.path()), prompts, clock);
    session.log.reset();
    session.callbacks.SaveShop = [] {};
    readAndSave(session, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
