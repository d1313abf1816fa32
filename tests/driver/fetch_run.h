// SPDX-License-Identifier: MIT
#pragma once

#include "driver/exporter_access.h"
#include "model/CIProgressCallback.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"
#include "model/PRWhatsappItem.h"
#include "support/http_server.h"

#include <QFileInfo>
#include <QStringList>

#include <functional>
#include <list>

/// Answers each step as it is told to; the first step is number 1.
class AnsweringProgress final : public CIProgressCallback {
public:
    explicit AnsweringProgress(std::function<bool(int)> answer) : m_answer(std::move(answer)) {}

    void initRange(int /*range*/) override {}
    int range() override { return 100; }
    bool step(double /*amount*/) override { return m_answer(++m_steps); }
    bool finish() override { return true; }
    void setAttachStage(bool /*attachStage*/) override {}

private:
    std::function<bool(int)> m_answer;
    int m_steps = 0;
};

// "server:/a" stands for an address of the server, "null" for no record at all.
inline QString withServer(QString text, const support::HttpServer& server)
{
    return text.replace("server:", server.address(""));
}

inline QString withoutServer(QString text, const support::HttpServer& server)
{
    return text.replace(server.address(""), "server:");
}

// "a fetched .jpg" for a file that is there.
inline QString shown(const QString& path, const support::HttpServer& server)
{
    const QFileInfo file(path);
    return file.isFile() ? ("a fetched ." + file.completeSuffix()) : withoutServer(path, server);
}

/// One call of either operation with records that no set holds, so that nothing is written again.
class Fetch {
public:
    Fetch(bool ofFiles, const QStringList& addresses, const support::HttpServer& server,
        const QString& name = {})
    {
        for (const QString& text : addresses) {
            const QString address = withServer(text, server);
            if (ofFiles) {
                m_files.emplace_back(Record{.values = {name}}, FileContent{.path = address});
                m_fileList.append(text == "null" ? nullptr : &m_files.back());
            } else {
                m_messages.emplace_back(ChatMessage{.media = address});
                m_messageList.append(text == "null" ? nullptr : &m_messages.back());
            }
        }
        m_ofFiles = ofFiles;
    }

    void go(CBackupExporter& exporter, CIProgressCallback* progress)
    {
        PRBackup backup;
        if (m_ofFiles) {
            (exporter.*access_to::onDownloadFileAttach())(
                m_fileList, 15, &backup, QDir("/nowhere"), "Anna", {14, 15}, progress, false);
        } else {
            (exporter.*access_to::onDownloadChatAttach())(
                m_messageList, 14, &backup, QDir("/nowhere"), "Anna", {14, 15}, progress, false);
        }
    }

    /// What the records hold now.
    QStringList left(const support::HttpServer& server) const
    {
        QStringList texts;
        for (const PRFileItem* file : m_fileList) {
            texts.append(file != nullptr ? shown(file->filePath(), server) : "null");
        }
        for (const PRWhatsappMsg* message : m_messageList) {
            texts.append(message != nullptr ? shown(message->media(), server) : "null");
        }
        return texts;
    }

private:
    bool m_ofFiles = false;
    std::list<PRFileItem> m_files;
    std::list<PRWhatsappMsg> m_messages;
    QList<PRFileItem*> m_fileList;
    QList<PRWhatsappMsg*> m_messageList;
};

// A failed claim shows it in words.
inline std::string joined(const QStringList& texts)
{
    return texts.join(", ").toStdString();
}

// "/a", "/b" are "ab".
inline QString letters(const std::vector<std::string>& paths)
{
    QString text;
    for (const std::string& path : paths) {
        text += QString::fromStdString(path.substr(1));
    }
    return text;
}
