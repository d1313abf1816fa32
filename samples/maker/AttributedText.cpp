// SPDX-License-Identifier: MIT
// A typedstream of "Hi" with one attribute, as it is written here:
//
//   04 0B "streamtyped" 81 E8 03            version, signature, 1000
//   84 01 "@"                               a new type string: an object follows
//   84 84 84 12 "NSAttributedString" 00     new object, new class, its name and version
//      84 84 08 "NSObject" 00 85            superclass, which has none
//   92 84 84 84 08 "NSString" 01 94         "@" again (string 0), new object, superclass object 2
//      84 01 "+" 02 "Hi" 86                 its bytes; end of the object
//   84 02 "iI" 01 02                        dictionary 1 holds for 2 units
//   92 84 84 84 0C "NSDictionary" 00 94 84 01 "i" 01 ...   one entry: "@" key, "@" value
//   86 86                                   end of the dictionary, and of the whole
//
// What was written before is referred to by its number plus 0x92: there is one count of type and
// class names, and another one of objects, classes and C strings. An object takes its number before
// its class, a class before its superclass.
#include "AttributedText.h"

#include "common.h"

#include <map>

namespace sample {

namespace {

constexpr char kNew = '\x84';
constexpr char kNil = '\x85';
constexpr char kEnd = '\x86';
constexpr int kFirstReference = 0x92 - 256; // as a signed byte
constexpr int kFirstLongReference = 128;

struct Class {
    QByteArray name;
    int version = 0;
    const Class* super = nullptr;
};
const Class kObject{"NSObject", 0, nullptr};
const Class kAttributedString{"NSAttributedString", 0, &kObject};
const Class kString{"NSString", 1, &kObject};
const Class kDictionary{"NSDictionary", 0, &kObject};
const Class kValue{"NSValue", 0, &kObject};
const Class kNumber{"NSNumber", 0, &kValue};
const Class kUrl{"NSURL", 0, &kObject};

class Stream {
public:
    Stream() { m_bytes = QByteArray("\x04\x0bstreamtyped\x81\xe8\x03", 16); }

    // Each of the following writes the type and one value of it.
    void body(const AttributedText& body);
    void string(const QString& text, const Class& itsClass = kString);

    const QByteArray& bytes() const { return m_bytes; }

private:
    void integer(qint64 value);
    void reference(int number);
    void name(const QByteArray& text);
    void classOf(const Class& itsClass);
    void openObject(const Class& itsClass);
    void close() { m_bytes += kEnd; }
    void content(const QByteArray& utf8);

    void dictionary(const AttributedText::Attributes& attributes);
    void key(const QByteArray& text);
    void value(const QVariant& value);
    void number(int value);

    QByteArray m_bytes;
    std::map<QByteArray, int> m_names;       // type strings and class names
    std::map<QByteArray, int> m_classes;     // numbers among the objects
    std::map<QByteArray, int> m_keys;        // NSString objects that serve as keys
    std::map<QByteArray, int> m_typeStrings; // C strings
    int m_objects = 0;
};

void Stream::integer(qint64 value)
{
    if (value >= -110 && value <= 127) {
        m_bytes += static_cast<char>(value);
        return;
    }
    const bool fitsTwoBytes = value >= -32768 && value <= 32767;
    m_bytes += fitsTwoBytes ? '\x81' : '\x82';
    for (int shift = 0; shift < (fitsTwoBytes ? 16 : 32); shift += 8) {
        m_bytes += static_cast<char>(value >> shift);
    }
}

void Stream::reference(int number)
{
    const int shifted = number + kFirstReference;
    if (shifted >= kFirstLongReference) {
        integer(shifted);
    } else {
        m_bytes += static_cast<char>(shifted);
    }
}

void Stream::name(const QByteArray& text)
{
    const auto known = m_names.find(text);
    if (known != m_names.end()) {
        reference(known->second);
        return;
    }
    m_names.emplace(text, static_cast<int>(m_names.size()));
    m_bytes += kNew;
    integer(text.size());
    m_bytes += text;
}

void Stream::classOf(const Class& itsClass)
{
    const auto known = m_classes.find(itsClass.name);
    if (known != m_classes.end()) {
        reference(known->second);
        return;
    }
    m_classes.emplace(itsClass.name, m_objects++);
    m_bytes += kNew;
    name(itsClass.name);
    integer(itsClass.version);
    if (itsClass.super != nullptr) {
        classOf(*itsClass.super);
    } else {
        m_bytes += kNil;
    }
}

void Stream::openObject(const Class& itsClass)
{
    name("@");
    m_bytes += kNew;
    ++m_objects;
    classOf(itsClass);
}

void Stream::content(const QByteArray& utf8)
{
    name("+");
    integer(utf8.size());
    m_bytes += utf8;
}

void Stream::string(const QString& text, const Class& itsClass)
{
    openObject(itsClass);
    content(text.toUtf8());
    close();
}

void Stream::body(const AttributedText& body)
{
    openObject(kAttributedString);
    string(body.text);
    std::vector<AttributedText::Attributes> written;
    for (const AttributedText::Run& run : body.runs) {
        const auto known = std::find(written.begin(), written.end(), run.attributes);
        name("iI");
        integer(known - written.begin() + 1);
        integer(run.length);
        if (known == written.end()) {
            written.push_back(run.attributes);
            dictionary(run.attributes);
        }
    }
    close();
}

void Stream::dictionary(const AttributedText::Attributes& attributes)
{
    openObject(kDictionary);
    name("i");
    integer(static_cast<qint64>(attributes.size()));
    for (const auto& [attribute, attributeValue] : attributes) {
        key(attribute);
        value(attributeValue);
    }
    close();
}

void Stream::key(const QByteArray& text)
{
    const auto known = m_keys.find(text);
    if (known != m_keys.end()) {
        name("@");
        reference(known->second);
        return;
    }
    m_keys.emplace(text, m_objects);
    string(QString::fromUtf8(text));
}

void Stream::value(const QVariant& value)
{
    if (value.userType() == QMetaType::QUrl) {
        openObject(kUrl);
        name("c");
        m_bytes += '\0'; // no base
        string(value.toUrl().toString());
        close();
    } else if (value.userType() == QMetaType::QString) {
        string(value.toString());
    } else {
        number(value.toInt());
    }
}

// Its type as a C string, then a value of that type.
void Stream::number(int value)
{
    openObject(kNumber);
    name("*");
    const auto known = m_typeStrings.find("i");
    if (known != m_typeStrings.end()) {
        reference(known->second);
    } else {
        m_typeStrings.emplace("i", m_objects++);
        m_bytes += kNew;
        name("i");
    }
    name("i");
    integer(value);
    close();
}

} // namespace

QByteArray typedstream(const AttributedText& body)
{
    Stream stream;
    stream.body(body);
    return stream.bytes();
}

} // namespace sample
