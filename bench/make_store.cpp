// SPDX-License-Identifier: MIT
// Makes a large store of messages in the schema of a phone, the same bytes for the same parameters:
//
//   make_store MESSAGES CONVERSATIONS SEED --store OUT.db
//   make_store MESSAGES CONVERSATIONS SEED --backup OUT_DIRECTORY
//   make_store MESSAGES CONVERSATIONS SEED --record-set OUT.json
//
// A tenth of all messages lie in the largest conversation; the others share the rest so that a few
// are long and most are short. Messages of all conversations follow each other in time, as on a
// phone, so that the rows of one conversation lie scattered over the table.
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

struct Parameters {
    std::int64_t messages = 0;
    std::int64_t conversations = 0;
    std::uint32_t seed = 0;
};

struct Message {
    std::int64_t id = 0;
    std::int64_t date = 0; // nanoseconds since 2001
    std::int64_t chat = 0; // from 1
    std::int64_t handle = 0;
    std::int64_t reactionTo = 0; // id of the message, 0: none
    std::string text;
    bool fromMe = false;
    bool textColumn = false; // else in the body alone, as most messages of recent releases
    bool attachment = false;
};

constexpr std::array<std::string_view, 32> kWords{"the", "dinner", "at", "eight", "sounds",
    "lovely", "can", "you", "bring", "bread", "and", "those", "olives", "we", "had", "last", "time",
    "train", "is", "late", "again", "see", "soon", "tomorrow", "morning", "coffee", "schön",
    "garçon", "mañana", "😀", "❤️", "ok"};

// Chances in a thousand.
constexpr unsigned kReactions = 30;
constexpr unsigned kAttachments = 50;
constexpr unsigned kFromMe = 450;
constexpr unsigned kTextColumn = 500;
constexpr int kGroupEvery = 10;
constexpr int kGroupMembers = 5;
constexpr std::int64_t kFirstDate = 600'000'000'000'000'000; // January 2020
constexpr std::int64_t kYears = 4;
constexpr std::int64_t kYear = 31'536'000'000'000'000;

/// std::mt19937 is the same everywhere; the distributions of the library are not.
class Chance {
public:
    explicit Chance(std::uint32_t seed) : m_engine(seed) {}
    std::uint32_t below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(m_engine()) % limit;
    }
    bool of1000(unsigned chance) { return below(1000) < chance; }

private:
    std::mt19937 m_engine;
};

std::string sentence(Chance& chance)
{
    std::string text;
    const std::uint32_t words = 3 + chance.below(18);
    for (std::uint32_t i = 0; i < words; ++i) {
        text += i == 0 ? "" : " ";
        text += kWords[chance.below(kWords.size())];
    }
    return text;
}

bool isGroup(std::int64_t chat)
{
    return chat % kGroupEvery == 0;
}

// The address of a person; those of groups are shared with one-to-one conversations.
std::string address(std::int64_t person)
{
    std::string number = std::to_string(1'000'000 + person);
    return person % 7 == 0 ? "person" + number + "@example.org" : "+1555" + number;
}

/// Gives each message its conversation: one large, the others by falling weight.
class Shares {
public:
    explicit Shares(const Parameters& parameters) : m_largest(parameters.messages / 10)
    {
        double sum = 0;
        for (std::int64_t chat = 2; chat <= parameters.conversations; ++chat) {
            sum += 1.0 / static_cast<double>(chat + 20);
            m_upTo.push_back(sum);
        }
    }

    std::int64_t pick(Chance& chance, std::int64_t messagesLeft, std::int64_t& largestLeft) const
    {
        if (m_upTo.empty()
            || static_cast<std::int64_t>(chance.below(1U << 30)) % messagesLeft < largestLeft) {
            --largestLeft;
            return 1;
        }
        const double point =
            static_cast<double>(chance.below(1U << 30)) / (1U << 30) * m_upTo.back();
        return 2 + (std::ranges::lower_bound(m_upTo, point) - m_upTo.begin());
    }

    std::int64_t largest() const { return m_largest; }

private:
    std::int64_t m_largest;
    std::vector<double> m_upTo;
};

void forEachMessage(const Parameters& parameters, const std::function<void(const Message&)>& use)
{
    Chance chance(parameters.seed);
    const Shares shares(parameters);
    std::int64_t largestLeft = shares.largest();
    std::vector<std::int64_t> lastOfChat(static_cast<std::size_t>(parameters.conversations) + 1);
    const std::int64_t interval = kYears * kYear / parameters.messages;
    for (std::int64_t id = 1; id <= parameters.messages; ++id) {
        Message message{.id = id, .date = kFirstDate + id * interval};
        message.chat = shares.pick(chance, parameters.messages - id + 1, largestLeft);
        message.fromMe = chance.of1000(kFromMe);
        message.handle =
            isGroup(message.chat) ? message.chat + chance.below(kGroupMembers) : message.chat;
        std::int64_t& last = lastOfChat[static_cast<std::size_t>(message.chat)];
        if (last != 0 && chance.of1000(kReactions)) {
            message.reactionTo = last;
            message.text = "Liked a message";
        } else {
            message.text = sentence(chance);
            message.attachment = chance.of1000(kAttachments);
            last = id;
        }
        message.textColumn = message.reactionTo != 0 || chance.of1000(kTextColumn);
        use(message);
    }
}

std::string guidOf(std::int64_t id)
{
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%08llX-4BAD-4ABC-8DEF-%012llX",
        static_cast<unsigned long long>(id * 2'654'435'761 % 4'294'967'296),
        static_cast<unsigned long long>(id));
    return text.data();
}

// An archived NSAttributedString of one run, as a phone writes it.
std::string attributedBody(const std::string& text)
{
    using namespace std::string_literals;
    static const std::string head =
        "\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x84\x84\x84\x12NSAttributedString\x00\x84\x84"
        "\x08NSObject\x00\x85\x92\x84\x84\x84\x08NSString\x01\x94\x84\x01+"s;
    static const std::string tail =
        "\x92\x84\x84\x84\x0cNSDictionary\x00\x94\x84\x01i\x01\x92\x84\x96\x96\x1d"
        "__kIMMessagePartAttributeName\x86\x92\x84\x84\x84\x08NSNumber\x00\x84\x84\x07NSValue\x00"
        "\x94\x84\x01*\x84\x99\x99\x00\x86\x86\x86"s;
    const auto number = [](std::size_t value) {
        return value < 128 ? std::string(1, static_cast<char>(value))
                           : std::string{'\x81', static_cast<char>(value & 0xff),
                               static_cast<char>(value >> 8)};
    };
    std::size_t units = 0; // of UTF-16
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) == 0x80 ? 0 : byte >= 0xF0 ? 2 : 1;
    }
    return head + number(text.size()) + text + "\x86\x84\x02iI\x01" + number(units) + tail;
}

[[noreturn]] void fail(const std::string& what)
{
    std::cerr << "make_store: " << what << '\n';
    std::exit(1);
}

/// A new database that is filled in one transaction.
class Store {
public:
    explicit Store(const std::string& path)
    {
        std::remove(path.c_str());
        if (sqlite3_open(path.c_str(), &m_handle) != SQLITE_OK) {
            fail(path + ": " + sqlite3_errmsg(m_handle));
        }
        run("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-200000");
    }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    ~Store() { sqlite3_close(m_handle); }

    void run(const std::string& sql)
    {
        if (sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            fail(sqlite3_errmsg(m_handle));
        }
    }

    sqlite3* handle() { return m_handle; }

private:
    sqlite3* m_handle = nullptr;
};

class Insert {
public:
    Insert(Store& store, const char* sql) : m_store(store)
    {
        if (sqlite3_prepare_v2(store.handle(), sql, -1, &m_statement, nullptr) != SQLITE_OK) {
            fail(sqlite3_errmsg(store.handle()));
        }
    }
    Insert(const Insert&) = delete;
    Insert& operator=(const Insert&) = delete;
    ~Insert() { sqlite3_finalize(m_statement); }

    Insert& number(std::int64_t value)
    {
        sqlite3_bind_int64(m_statement, ++m_at, value);
        return *this;
    }
    Insert& text(const std::string& value)
    {
        sqlite3_bind_text(
            m_statement, ++m_at, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
        return *this;
    }
    Insert& blob(const std::string& value)
    {
        sqlite3_bind_blob(
            m_statement, ++m_at, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
        return *this;
    }
    Insert& null()
    {
        sqlite3_bind_null(m_statement, ++m_at);
        return *this;
    }
    void row()
    {
        if (sqlite3_step(m_statement) != SQLITE_DONE) {
            fail(sqlite3_errmsg(m_store.handle()));
        }
        sqlite3_reset(m_statement);
        m_at = 0;
    }

private:
    Store& m_store;
    sqlite3_stmt* m_statement = nullptr;
    int m_at = 0;
};

void fillPeople(Store& store, const Parameters& parameters)
{
    Insert handles(store, "INSERT INTO handle (ROWID, id, country, service) VALUES (?,?,'us',?)");
    Insert chats(store,
        "INSERT INTO chat (ROWID, guid, style, state, chat_identifier, service_name, display_name)"
        " VALUES (?,?,?,3,?,'iMessage',?)");
    Insert members(store, "INSERT INTO chat_handle_join (chat_id, handle_id) VALUES (?,?)");
    for (std::int64_t person = 1; person <= parameters.conversations + kGroupMembers; ++person) {
        handles.number(person).text(address(person)).text("iMessage").row();
    }
    for (std::int64_t chat = 1; chat <= parameters.conversations; ++chat) {
        const bool group = isGroup(chat);
        const std::string identifier =
            group ? "chat" + std::to_string(100'000'000 + chat) : address(chat);
        chats.number(chat)
            .text((group ? "iMessage;+;" : "iMessage;-;") + identifier)
            .number(group ? 43 : 45)
            .text(identifier);
        (group ? chats.text("Group " + std::to_string(chat)) : chats.null()).row();
        for (int member = 0; member < (group ? kGroupMembers : 1); ++member) {
            members.number(chat).number(chat + member).row();
        }
    }
}

void fillMessages(Store& store, const Parameters& parameters)
{
    Insert messages(store,
        "INSERT INTO message (ROWID, guid, text, attributedBody, handle_id, service, account,"
        " date, date_read, date_delivered, is_delivered, is_finished, is_from_me, is_read, is_sent,"
        " cache_has_attachments, associated_message_guid, associated_message_type,"
        " destination_caller_id, ck_record_id)"
        " VALUES (?,?,?,?,?,'iMessage','e:anna@example.org',?,?,?,1,1,?,1,?,?,?,?,"
        "'+15550001111',?)");
    Insert joins(
        store, "INSERT INTO chat_message_join (chat_id, message_id, message_date) VALUES (?,?,?)");
    Insert files(store, "INSERT INTO attachment (ROWID, guid, original_guid, created_date, "
                        "filename, uti, mime_type,"
                        " transfer_state, is_outgoing, transfer_name, total_bytes)"
                        " VALUES (?,?,?,?,?,'public.jpeg','image/jpeg',5,?,?,123456)");
    Insert fileJoins(
        store, "INSERT INTO message_attachment_join (message_id, attachment_id) VALUES (?,?)");
    std::int64_t file = 0;
    forEachMessage(parameters, [&](const Message& message) {
        const std::string guid = guidOf(message.id);
        const std::string text = (message.attachment ? "\xEF\xBF\xBC" : "") + message.text;
        messages.number(message.id).text(guid);
        (message.textColumn ? messages.text(text) : messages.null()).blob(attributedBody(text));
        messages.number(message.fromMe && !isGroup(message.chat) ? message.chat : message.handle)
            .number(message.date)
            .number(message.date + 60'000'000'000)
            .number(message.date + 1'000'000'000)
            .number(message.fromMe)
            .number(message.fromMe)
            .number(message.attachment);
        if (message.reactionTo != 0) {
            messages.text("p:0/" + guidOf(message.reactionTo)).number(2001);
        } else {
            messages.null().number(0);
        }
        messages.text("record-" + guid).row();
        joins.number(message.chat).number(message.id).number(message.date).row();
        if (message.attachment) {
            ++file;
            const std::string name = "IMG_" + std::to_string(file) + ".jpeg";
            files.number(file)
                .text("at_0_" + guid)
                .text("at_0_" + guid)
                .number(message.date / 1'000'000'000)
                .text("~/Library/SMS/Attachments/ab/11/at_0_" + guid + "/" + name)
                .number(message.fromMe)
                .text(name)
                .row();
            fileJoins.number(message.id).number(file).row();
        }
    });
}

std::string readFile(const std::string& path)
{
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    if (!file) {
        fail(path + ": cannot be read");
    }
    return text.str();
}

void makeDatabase(const Parameters& parameters, const std::string& path)
{
    Store store(path);
    store.run(readFile(DATAEXPORT_SCHEMAS "/sms.sql"));
    store.run("BEGIN");
    fillPeople(store, parameters);
    fillMessages(store, parameters);
    store.run("COMMIT");
}

void writeFile(const std::string& path, const std::string& text)
{
    std::ofstream out(path);
    out << text;
    if (!out) {
        fail(path + ": cannot be written");
    }
}

// A backup folder that holds the store and nothing else.
void makeBackup(const Parameters& parameters, const std::string& directory)
{
    // SHA-1 of "HomeDomain-Library/SMS/sms.db"
    const std::string fileId = "3d0d7e5fb2ce288813306e4d4636395e047a3d28";
    const std::string head = R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)";
    const std::string tail = "</dict></plist>\n";
    std::error_code error;
    if (!std::filesystem::create_directories(directory + "/3d", error)) {
        fail(directory + ": cannot be made, or is there already");
    }
    makeDatabase(parameters, directory + "/3d/" + fileId);
    Store manifest(directory + "/Manifest.db");
    manifest.run(readFile(DATAEXPORT_SCHEMAS "/Manifest.sql"));
    manifest.run("INSERT INTO Files (fileID, domain, relativePath, flags) VALUES ('" + fileId
                 + "', 'HomeDomain', 'Library/SMS/sms.db', 1)");
    writeFile(directory + "/Manifest.plist", head + "<key>IsEncrypted</key><false/>" + tail);
    writeFile(directory + "/Info.plist", head + "<key>Device Name</key><string>Bench</string>"
                                             + "<key>Product Version</key><string>17.5.1</string>"
                                             + tail);
}

// The words need no escapes in JSON.
void makeRecordSet(const Parameters& parameters, const std::string& path)
{
    std::vector<std::vector<std::string>> chats(
        static_cast<std::size_t>(parameters.conversations) + 1);
    forEachMessage(parameters, [&](const Message& message) {
        const std::int64_t seconds = message.date / 1'000'000'000 + 978'307'200;
        std::array<char, 32> date{};
        const std::time_t moment = seconds;
        std::tm utc{};
        gmtime_r(&moment, &utc);
        std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%SZ", &utc);
        chats[static_cast<std::size_t>(message.chat)].push_back(
            std::string(R"({"date":")") + date.data() + R"(","fromMe":)"
            + (message.fromMe ? "true" : "false") + R"(,"normalSMS":false,"addr":")"
            + address(message.handle) + R"(","content":")" + message.text + "\"}");
    });
    std::ofstream out(path);
    out << R"({"recordSet":1,"owner":"Bench","sets":[{"dataType":0,"records":[)";
    for (std::size_t chat = 1; chat < chats.size(); ++chat) {
        out << (chat > 1 ? ",\n" : "\n") << R"({"values":["Person )" << chat << R"(",")"
            << address(static_cast<std::int64_t>(chat)) << R"("],"chats":[)";
        for (std::size_t i = 0; i < chats[chat].size(); ++i) {
            out << (i > 0 ? ",\n" : "\n") << chats[chat][i];
        }
        out << "]}";
    }
    out << "]}]}\n";
    if (!out) {
        fail(path + ": cannot be written");
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 6) {
        fail("usage: make_store MESSAGES CONVERSATIONS SEED --store|--backup|--record-set OUT");
    }
    const Parameters parameters{
        .messages = std::atoll(arguments[1]),
        .conversations = std::atoll(arguments[2]),
        .seed = static_cast<std::uint32_t>(std::atoll(arguments[3])),
    };
    if (parameters.messages < 1 || parameters.conversations < 1) {
        fail("at least one message and one conversation are needed");
    }
    const std::string form = arguments[4];
    if (form == "--record-set") {
        makeRecordSet(parameters, arguments[5]);
    } else if (form == "--backup") {
        makeBackup(parameters, arguments[5]);
    } else if (form == "--store") {
        makeDatabase(parameters, arguments[5]);
    } else {
        fail("there is no form " + form);
    }
    return 0;
}
