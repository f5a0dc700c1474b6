#include "base/RuntimeError.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Description
{
    ErrorNumber number;
    QLatin1StringView text;
};

constexpr std::array descriptions{
    Description{ErrorNumber::InvalidArgument, "Invalid argument"_L1},
    Description{ErrorNumber::Overflow, "Overflow"_L1},
    Description{ErrorNumber::OutOfMemory, "Out of memory"_L1},
    Description{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"_L1},
    Description{ErrorNumber::TypeMismatch, "Type mismatch"_L1},
    Description{ErrorNumber::OutOfStackSpace, "Out of stack space"_L1},
    Description{ErrorNumber::FileNotFound, "File not found"_L1},
    Description{ErrorNumber::DeviceError, "Device error while reading or writing"_L1},
    Description{ErrorNumber::DiskFull, "Disk full"_L1},
    Description{ErrorNumber::PermissionDenied, "Permission denied"_L1},
    Description{ErrorNumber::PathFileAccess, "Path or file cannot be accessed"_L1},
    Description{ErrorNumber::ObjectNotSet, "Object not set"_L1},
    Description{ErrorNumber::InvalidUseOfNull, "Invalid use of null"_L1},
    Description{ErrorNumber::NoSuchMember, "The object has no such member"_L1},
    Description{ErrorNumber::DuplicateKey, "This key is already in the collection"_L1},
};

QString usualDescription(ErrorNumber number)
{
    const auto* found = std::find_if(descriptions.begin(), descriptions.end(),
                                     [number](const Description& entry) { return entry.number == number; });
    return found != descriptions.end() ? QString(found->text) : QString();
}

} // namespace

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, usualDescription(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, const QString& description)
    : m_number(number), m_description(description), m_utf8(description.toUtf8())
{
}

RuntimeError RuntimeError::because(const QString& cause) const
{
    RuntimeError error = *this;
    error.addCircumstance(cause);
    return error;
}

void failAt(ErrorNumber number, const QString& path)
{
    throw RuntimeError(number, usualDescription(number) + ": "_L1 + path);
}
