// Precompiled for every source: the headers that most of them read and that never change. A source still includes what
// it uses; the lint build has no precompiled headers and finds out.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <span>
#include <utility>
#include <variant>
#include <vector>
