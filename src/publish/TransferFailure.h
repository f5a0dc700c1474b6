// A failure that broke a transfer off: what the upload log tells about it.
#pragma once

#include <QString>

struct TransferFailure
{
    QString ErrorDescription;
    int ErrorNumber = 0; // a run-time error's, or the client library's own
};
