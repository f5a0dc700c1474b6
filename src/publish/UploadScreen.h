// What a running upload needs of the dialog that shows it. frmUpload implements it; a test can do so without a window.
#pragma once

#include <QString>

struct UploadFields
{
    QString address;
    QString login;
    QString password;
};

class UploadScreen
{
public:
    virtual ~UploadScreen() = default;

    // The texts in the fields as they stand.
    virtual UploadFields fields() const = 0;
    virtual void setAddress(const QString& address) = 0;
    virtual void setHourglass(bool on) = 0;
    // Shows the bar at a value from 0 to 100.
    virtual void showProgress(int value) = 0;
    virtual void closeScreen() = 0;
};
