// SPDX-License-Identifier: MIT
// An explicit instantiation may name private members; the friend that comes with it hands them out.
#include "driver/exporter_access.h"

namespace access_to {
namespace {

template <typename Name, typename Name::Type kMember> struct Opened {
    friend typename Name::Type pointerTo(Name /*name*/) { return kMember; }
};

struct FromDFU {
    using Type = Flag;
    friend Type pointerTo(FromDFU name);
};
template struct Opened<FromDFU, &CBackupExporter::m_fromDFU>;

struct ExportContactForTavero {
    using Type = Flag;
    friend Type pointerTo(ExportContactForTavero name);
};
template struct Opened<ExportContactForTavero, &CBackupExporter::m_exportContactForTavero>;

struct EventLoop {
    using Type = EventLoopField;
    friend Type pointerTo(EventLoop name);
};
template struct Opened<EventLoop, &CBackupExporter::m_eventLoop>;

struct Curl {
    using Type = CurlField;
    friend Type pointerTo(Curl name);
};
template struct Opened<Curl, &CBackupExporter::m_curl>;

struct StopLoop {
    using Type = Flag;
    friend Type pointerTo(StopLoop name);
};
template struct Opened<StopLoop, &CBackupExporter::m_stopLoop>;

struct Cancelled {
    using Type = Flag;
    friend Type pointerTo(Cancelled name);
};
template struct Opened<Cancelled, &CBackupExporter::m_cancelled>;

struct ExportBookmark {
    using Type = Entry;
    friend Type pointerTo(ExportBookmark name);
};
template struct Opened<ExportBookmark, &CBackupExporter::exportBookmark>;

struct ExportCalendarIcs {
    using Type = Entry;
    friend Type pointerTo(ExportCalendarIcs name);
};
template struct Opened<ExportCalendarIcs, &CBackupExporter::exportCalendarIcs>;

struct ExportContact {
    using Type = Entry;
    friend Type pointerTo(ExportContact name);
};
template struct Opened<ExportContact, &CBackupExporter::exportContact>;

struct ExportFile {
    using Type = Entry;
    friend Type pointerTo(ExportFile name);
};
template struct Opened<ExportFile, &CBackupExporter::exportFile>;

struct ExportHtml {
    using Type = Entry;
    friend Type pointerTo(ExportHtml name);
};
template struct Opened<ExportHtml, &CBackupExporter::exportHtml>;

struct ExportSMS {
    using Type = Entry;
    friend Type pointerTo(ExportSMS name);
};
template struct Opened<ExportSMS, &CBackupExporter::exportSMS>;

struct ExportWeichatContact {
    using Type = Entry;
    friend Type pointerTo(ExportWeichatContact name);
};
template struct Opened<ExportWeichatContact, &CBackupExporter::exportWeichatContact>;

struct ExportWhatsapp {
    using Type = Entry;
    friend Type pointerTo(ExportWhatsapp name);
};
template struct Opened<ExportWhatsapp, &CBackupExporter::exportWhatsapp>;

struct ExportWhatsappHtml {
    using Type = Entry;
    friend Type pointerTo(ExportWhatsappHtml name);
};
template struct Opened<ExportWhatsappHtml, &CBackupExporter::exportWhatsappHtml>;

struct GetDownloadChatMsg {
    using Type = CollectMessages;
    friend Type pointerTo(GetDownloadChatMsg name);
};
template struct Opened<GetDownloadChatMsg, &CBackupExporter::getDownloadChatMsg>;

struct GetDownloadFileItem {
    using Type = CollectFiles;
    friend Type pointerTo(GetDownloadFileItem name);
};
template struct Opened<GetDownloadFileItem, &CBackupExporter::getDownloadFileItem>;

struct OnDownloadChatAttach {
    using Type = FetchMessages;
    friend Type pointerTo(OnDownloadChatAttach name);
};
template struct Opened<OnDownloadChatAttach, &CBackupExporter::onDownloadChatAttach>;

struct OnDownloadFileAttach {
    using Type = FetchFiles;
    friend Type pointerTo(OnDownloadFileAttach name);
};
template struct Opened<OnDownloadFileAttach, &CBackupExporter::onDownloadFileAttach>;

} // namespace

Flag fromDFU()
{
    return pointerTo(FromDFU{});
}

Flag exportContactForTavero()
{
    return pointerTo(ExportContactForTavero{});
}

EventLoopField eventLoop()
{
    return pointerTo(EventLoop{});
}

CurlField curl()
{
    return pointerTo(Curl{});
}

Flag stopLoop()
{
    return pointerTo(StopLoop{});
}

Flag cancelled()
{
    return pointerTo(Cancelled{});
}

Entry exportBookmark()
{
    return pointerTo(ExportBookmark{});
}

Entry exportCalendarIcs()
{
    return pointerTo(ExportCalendarIcs{});
}

Entry exportContact()
{
    return pointerTo(ExportContact{});
}

Entry exportFile()
{
    return pointerTo(ExportFile{});
}

Entry exportHtml()
{
    return pointerTo(ExportHtml{});
}

Entry exportSMS()
{
    return pointerTo(ExportSMS{});
}

Entry exportWeichatContact()
{
    return pointerTo(ExportWeichatContact{});
}

Entry exportWhatsapp()
{
    return pointerTo(ExportWhatsapp{});
}

Entry exportWhatsappHtml()
{
    return pointerTo(ExportWhatsappHtml{});
}

CollectMessages getDownloadChatMsg()
{
    return pointerTo(GetDownloadChatMsg{});
}

CollectFiles getDownloadFileItem()
{
    return pointerTo(GetDownloadFileItem{});
}

FetchMessages onDownloadChatAttach()
{
    return pointerTo(OnDownloadChatAttach{});
}

FetchFiles onDownloadFileAttach()
{
    return pointerTo(OnDownloadFileAttach{});
}

} // namespace access_to
