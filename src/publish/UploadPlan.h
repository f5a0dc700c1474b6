// What goes up and in which order: the shop file, the pictures that it names and the server lacks, and all templates.
// The plan is made from the shop file on disk, which the saved shop is, and from the server's list.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/KeyedCollection.h"
#include "publish/clsFileProp.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <pugixml.hpp>
#include <vector>

class XmlTexts;

// One file to send.
struct UploadItem
{
    enum class Kind { Shop, Picture, Template };

    Kind kind = Kind::Shop;
    QString name;  // of a picture; of a template without ".html"
    int steps = 0; // that the progress advances by when it has been sent
};

// What the request for an item carries.
struct UploadPart
{
    QString localFile;
    QString fileName; // as it is told to the server
    QByteArray contentType;
};

// ErrorNumber::FileNotFound for a picture whose name leads out of pictures/: it counts as a file that is not there.
UploadPart partOf(const UploadItem& item, const ApplicationFolder& folder);

class UploadPlan
{
public:
    enum class Found { All, NoShop, NoShopDesign };

    // The list outlives the plan.
    UploadPlan(const ApplicationFolder& folder, const ServerFileList& serverFiles);

    // Bare file names in the order found; keys are the names, without regard to case.
    KeyedCollection<QString> PicturesToUpload;

    // Walks the shop file for pictures. A shop file that is missing or malformed has no Shop.
    // ErrorNumber::PathFileAccess when there is no folder of pictures, OutOfMemory when names lie in each other and
    // take far more together than the file.
    Found walkShopFile();

    // Adds a picture unless the server has one of that name whose size the local file of exactly this name has. Equal
    // size counts as equal content.
    void AddPictureIfNeeded(const QString& name);

    // How far one step moves the bar: 0 with more than 81 pictures.
    qint16 ProgressStep() const;

    // All that goes up, in order.
    std::vector<UploadItem> items() const;

private:
    void readPicturesFolder();
    void addCatalogue(const pugi::xml_node& shop, XmlTexts& texts);
    void addDesign(const pugi::xml_node& design, XmlTexts& texts);

    ApplicationFolder m_folder;
    const ServerFileList& m_serverFiles;
    QHash<QString, qint64> m_localSizes; // of the files in pictures/
};

// What stands behind the last "\" of a picture's name.
QString StripPath(const QString& name);
