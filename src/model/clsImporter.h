// Reads products from a text file, one a line, with comma-separated fields: name, description, path of categories.
// Makes the products, and the categories that are missing, in the open shop. Made for one import by the command that
// runs it.
#pragma once

#include "model/ShopSession.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>

class clsImporter
{
public:
    // Hears how many characters of how many are done, now and then.
    using Progress = std::function<void(qsizetype done, qsizetype total)>;

    explicit clsImporter(ShopSession& session, Progress progress = {})
        : m_session(session), m_progress(std::move(progress))
    {
    }

    // Imports a file to its end. A failure in a line ends it there, and what the lines before it made stays:
    // ErrorNumber::SubscriptOutOfRange for a line with fewer than three fields, such as an empty one; OutOfStackSpace
    // for a path that is too deep. FileNotFound, PermissionDenied or PathFileAccess for a file that cannot be opened.
    void Import(const QString& fileName);

    // Of the last import, also of one that stopped: the products that it made, and the line that it read last, which is
    // the one that stopped it. 1-based; 0 when it came to none.
    int productCount = 0;
    int line = 0;

    // The fields of one line. Blanks behind a field are dropped, those ahead of a plain one stay; a comma between
    // double quotes is text. A doubled quote means nothing special, and an open quote takes the rest of the line.
    static QStringList PSplit(QStringView line);

private:
    ShopSession& m_session;
    Progress m_progress;
};
