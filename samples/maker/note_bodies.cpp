// SPDX-License-Identifier: MIT
// The messages are those of src/formats/note_body.proto.
#include "note_bodies.h"

#include <QCryptographicHash>

#include <cstdlib>
#include <note_body.pb.h>
#include <zlib.h>

namespace sample {

namespace {

using formats::proto::TableObjects;

QByteArray serialized(const google::protobuf::MessageLite& message)
{
    return gzipped(QByteArray::fromStdString(message.SerializeAsString()));
}

void setParagraph(formats::proto::AttributeRun& run, const NoteStretch& stretch)
{
    formats::proto::ParagraphStyle& paragraph = *run.mutable_paragraph();
    if (stretch.style >= 0) {
        paragraph.set_style(stretch.style);
    }
    if (stretch.indent > 0) {
        paragraph.set_indent(stretch.indent);
    }
    if (stretch.quote) {
        paragraph.set_quote(1);
    }
    if (stretch.style == 103) {
        paragraph.mutable_checklist()->set_uuid(
            QCryptographicHash::hash(stretch.text.toUtf8(), QCryptographicHash::Md5).toStdString());
        paragraph.mutable_checklist()->set_done(stretch.done ? 1 : 0);
    }
}

/// Builds the heap of objects of a table.
class TableWriter {
public:
    explicit TableWriter(TableObjects& objects) : m_objects(objects)
    {
        m_objects.add_type("com.apple.notes.ICTable");
        m_objects.add_type("com.apple.CRDT.NSUUID");
    }

    void write(const std::vector<QStringList>& rows)
    {
        m_objects.add_object(); // the table itself comes first
        const int columns = rows.empty() ? 0 : rows.front().size();
        const std::vector<int> rowIds = addOrder("crRows", "row", static_cast<int>(rows.size()));
        const std::vector<int> columnIds = addOrder("crColumns", "column", columns);
        const int cells = m_objects.object_size();
        m_objects.add_object();
        addField("cellColumns", cells);
        for (int column = 0; column < columns; ++column) {
            const int ofColumn = m_objects.object_size();
            m_objects.add_object();
            addElement(cells, columnIds[static_cast<std::size_t>(column)], ofColumn);
            for (std::size_t row = 0; row < rows.size(); ++row) {
                addElement(ofColumn, rowIds[row], addText(rows[row][column]));
            }
        }
    }

private:
    // A list of rows or columns. Each has the identifier of its place and one of its own.
    std::vector<int> addOrder(const char* name, const char* kind, int count)
    {
        const int order = m_objects.object_size();
        m_objects.add_object();
        addField(name, order);
        std::vector<int> own;
        for (int number = 0; number < count; ++number) {
            const std::string place = uuid(QString("place of %1 %2").arg(kind).arg(number));
            const int placeId = addIdentifier(place);
            own.push_back(addIdentifier(uuid(QString("%1 %2").arg(kind).arg(number))));
            auto& ordering =
                *m_objects.mutable_object(order)->mutable_ordered()->mutable_ordering();
            auto& placed = *ordering.mutable_places()->add_place();
            placed.set_index(number);
            placed.set_uuid(place);
            auto& element = *ordering.mutable_identifiers()->add_element();
            element.mutable_key()->set_object(placeId);
            element.mutable_value()->set_object(own.back());
        }
        return own;
    }

    void addField(const char* name, int object)
    {
        auto& fields = *m_objects.mutable_object(0)->mutable_fields();
        fields.set_type(0);
        auto& field = *fields.add_field();
        field.set_key(m_objects.key_size());
        field.mutable_value()->set_object(object);
        m_objects.add_key(name);
    }

    void addElement(int dictionary, int key, int value)
    {
        auto& element = *m_objects.mutable_object(dictionary)->mutable_dictionary()->add_element();
        element.mutable_key()->set_object(key);
        element.mutable_value()->set_object(value);
    }

    int addIdentifier(const std::string& uuid)
    {
        const int object = m_objects.object_size();
        auto& fields = *m_objects.add_object()->mutable_fields();
        fields.set_type(1);
        fields.add_field()->mutable_value()->set_number(
            static_cast<std::uint64_t>(m_objects.uuid_size()));
        m_objects.add_uuid(uuid);
        return object;
    }

    int addText(const QString& text)
    {
        const int object = m_objects.object_size();
        m_objects.add_object()->mutable_note()->set_text(text.toStdString());
        return object;
    }

    static std::string uuid(const QString& name)
    {
        return QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Md5).toStdString();
    }

    TableObjects& m_objects;
};

} // namespace

QByteArray gzipped(const QByteArray& bytes)
{
    z_stream stream{};
    constexpr int kGzip = MAX_WBITS + 16;
    constexpr int kMemory = 8;
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzip, kMemory, Z_DEFAULT_STRATEGY)
        != Z_OK) {
        std::abort(); // no memory
    }
    QByteArray packed(
        static_cast<int>(deflateBound(&stream, static_cast<uLong>(bytes.size()))), '\0');
    QByteArray plain = bytes;
    stream.next_in = reinterpret_cast<Bytef*>(plain.data());
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH); // the bound leaves room for all of it
    packed.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

QByteArray noteBody(const std::vector<NoteStretch>& stretches)
{
    formats::proto::NoteStore store;
    store.mutable_document()->set_version(0);
    formats::proto::NoteText& note = *store.mutable_document()->mutable_note();
    QString text;
    for (const NoteStretch& stretch : stretches) {
        text += stretch.text;
        formats::proto::AttributeRun& run = *note.add_run();
        run.set_length(stretch.text.size());
        setParagraph(run, stretch);
        if (stretch.weight != 0) {
            run.set_weight(stretch.weight);
        }
        if (!stretch.link.isEmpty()) {
            run.set_link(stretch.link.toStdString());
        }
        if (!stretch.attachment.isEmpty()) {
            run.mutable_attachment()->set_identifier(stretch.attachment.toStdString());
            run.mutable_attachment()->set_type(stretch.attachmentType.toStdString());
        }
    }
    note.set_text(text.toStdString());
    return serialized(store);
}

QByteArray noteTable(const std::vector<QStringList>& rows)
{
    formats::proto::TableStore store;
    TableWriter(*store.mutable_document()->mutable_objects()).write(rows);
    return serialized(store);
}

} // namespace sample
