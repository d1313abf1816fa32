// SPDX-License-Identifier: MIT
// What each card has:
//
//   BEGIN:VCARD
//   VERSION:2.1
//   ...
//   PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4AAQ...
//   ...
//   END:VCARD
//   (two empty lines)
#include "translators/contact/VCard.h"

#include "model/PRContactItem.h"

namespace {

constexpr int kRoomForLines = 1'024; // characters

int lengthAsBase64(const QByteArray& bytes)
{
    return (bytes.size() / 3 + 1) * 4;
}

} // namespace

VCard::VCard(const PRContactPrivate& contact)
{
    m_text.reserve(kRoomForLines + contact.note.size() + lengthAsBase64(contact.photo));
    addLine("BEGIN:VCARD"_L1);
    addLine("VERSION:2.1"_L1);
}

void VCard::addPhoto(const QByteArray& photo)
{
    if (!photo.isEmpty()) {
        addLine("PHOTO;TYPE=JPEG;ENCODING=BASE64:"_L1, QLatin1String(photo.toBase64()));
    }
}

const QString& VCard::end()
{
    addLine("END:VCARD"_L1);
    addLine();
    addLine();
    return m_text;
}
