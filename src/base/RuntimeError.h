// The one exception of the program: a failure with a number that the user may meet in the last box before the program
// ends ("Run-time error 'N':"). Everything below the windows lets it pass, unless the behaviour says that it is
// trapped.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <exception>

enum class ErrorNumber : int {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    NoSuchMember = 438,
    DuplicateKey = 457,
};

class RuntimeError : public std::exception
{
public:
    // An error with the number's usual description.
    explicit RuntimeError(ErrorNumber number);
    // An error whose description tells more, such as the path of the file that is missing.
    RuntimeError(ErrorNumber number, const QString& description);

    ErrorNumber number() const { return m_number; }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

    // The cause in plain words, where it is known, and what was going on: sentences for the owner, from the innermost
    // work outwards. during() in Circumstances.h adds them while the error passes.
    const QStringList& circumstances() const { return m_circumstances; }
    void addCircumstance(const QString& sentence) { m_circumstances.append(sentence); }
    // The same error with its cause.
    RuntimeError because(const QString& cause) const;

private:
    ErrorNumber m_number;
    QString m_description;
    QByteArray m_utf8;
    QStringList m_circumstances;
};

// Raises the error with its usual description and the path of the file or folder that it is about.
[[noreturn]] void failAt(ErrorNumber number, const QString& path);
