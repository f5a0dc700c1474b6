// One dialog's uploads from the press of OK to "Complete" or a failure: asks for the server's list, plans, and sends
// one file after the other. It waits by returning to the event loop: each answer starts the next request. frmUpload
// owns it.
#pragma once

#include "base/ApplicationFolder.h"
#include "publish/HttpClient.h"
#include "publish/TransferFailure.h"
#include "publish/UploadPlan.h"
#include "publish/UploadScreen.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

class UserPrompts;

class UploadRun
{
public:
    // All outlive the run.
    UploadRun(const ApplicationFolder& folder, HttpClient& client, UserPrompts& prompts, UploadScreen& screen);
    UploadRun(const UploadRun&) = delete;
    UploadRun& operator=(const UploadRun&) = delete;
    ~UploadRun();

    // The transfer flag: nothing closes the screen meanwhile but the end of the program.
    bool isTransferring() const { return m_transferring; }

    // The screen opens: without a failure of last time and without a transfer.
    void open();
    // OK was pressed. Does nothing during a transfer.
    void start();
    // Breaks a transfer off without a word, because the program ends.
    void abandon();
    // Writes upload.log with the fields and the failure that is kept, if any. Errors as for writeFileBytes.
    void writeLog() const;

private:
    void post(QLatin1StringView page, const QByteArray& body, void (UploadRun::*answered)(const HttpAnswer&));
    void listAnswered(const HttpAnswer& answer);
    bool refusesFields(const UploadFields& fields);
    void startSending();
    bool refusesFiles();
    void sendNext();
    void sendItem(const UploadItem& item);
    void itemAnswered(const HttpAnswer& answer);
    void advance(int steps);
    void complete();
    void showCarriesBoundary(const QString& what);

    // The ends of a transfer.
    void stop();
    void stopWithoutNode(const char* tag);
    void fail(const TransferFailure& failure, const QString& text);

    ApplicationFolder m_folder;
    HttpClient& m_client;
    UserPrompts& m_prompts;
    UploadScreen& m_screen;

    bool m_transferring = false;
    std::optional<TransferFailure> m_failure; // the last one since the screen was opened

    // Of the transfer under way.
    QString m_baseUrl;
    QByteArray m_head;
    ServerFileList m_serverFiles;
    std::vector<UploadItem> m_items;
    std::size_t m_next = 0; // 0-based, the item to be sent or being sent
    qint16 m_progressStep = 0;
    int m_progress = 0;
};
