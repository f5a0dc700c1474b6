// upload.log: whom the dialog last uploaded as and where, and the failure that the vendor's support asks for. It is the
// dialog's memory, too. The password never stands in it.
#pragma once

#include "base/ApplicationFolder.h"
#include "publish/TransferFailure.h"

#include <QString>

#include <optional>

// Writes the file anew: login, address, and a third line only when there is a failure. Errors as for writeFileBytes.
void writeUploadLog(const ApplicationFolder& folder, const QString& login, const QString& address,
                    const std::optional<TransferFailure>& failure);

// What the file remembers. A field is nothing when the file does not have it.
struct RememberedUpload
{
    std::optional<QString> login;
    std::optional<QString> address;
};

// The first two of at most four items, each ended by a line end or a comma. Nothing when there is no file, none that
// can be read, or one of more items.
RememberedUpload readUploadLog(const ApplicationFolder& folder);
