// The pages of the shop service that the upload dialog points at, and the address that its field holds before anything
// was ever uploaded. A deployment puts its own here; nothing else in the program names a host.
#pragma once

#include <QString>

namespace VendorAddresses {

inline const QString& DefaultShop()
{
    static const QString address = QStringLiteral("http://shop.example.com/");
    return address;
}

inline const QString& SignUp()
{
    static const QString address = QStringLiteral("http://www.example.com/signup");
    return address;
}

inline const QString& PasswordRecovery()
{
    static const QString address = QStringLiteral("http://www.example.com/password");
    return address;
}

inline const QString& Upgrade()
{
    static const QString address = QStringLiteral("http://www.example.com/upgrade");
    return address;
}

} // namespace VendorAddresses
