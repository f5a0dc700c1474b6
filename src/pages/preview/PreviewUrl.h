// Reading the addresses that the pages of the shop send. They are searched as texts and not taken apart as addresses:
// what the shop's server takes for a parameter is all that counts.
#pragma once

#include <QString>

// The host of the pseudo-server that serverAddress names.
QString serverHost();

// The text behind the first key + "=", up to the next "&"; the default when the key is not there. The key is
// deliberately found inside longer keys, too ("id" in "product_id=").
QString GetUrlParam(const QString& text, const QString& key, const QString& defaultText);

// "%20" becomes a blank and "%2C" a point, so that a price typed with a comma is read as one. No other escape is
// touched.
QString DecodeUrlText(const QString& text);
