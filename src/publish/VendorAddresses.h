// The pages of the shop service that the upload dialog points at, and the address that its field holds before anything
// was ever uploaded. A deployment puts its own here; nothing else in the program names a host.
#pragma once

#include <QString>

namespace VendorAddresses {

inline const QString& defaultShop()
{
    static const QString address = QStringLiteral("http://shop.example.com/");
    return address;
}

inline const QString& signUp()
{
    static const QString address = QStringLiteral("http://www.example.com/signup");
    return address;
}

inline const QString& passwordRecovery()
{
    static const QString address = QStringLiteral("http://www.example.com/password");
    return address;
}

inline const QString& upgrade()
{
    static const QString address = QStringLiteral("http://www.example.com/upgrade");
    return address;
}

} // namespace VendorAddresses
