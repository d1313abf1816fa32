// SPDX-License-Identifier: MIT
#include "recordings.h"

#include <QByteArrayList>

namespace sample {

namespace {

// Points from the lower left corner of an A5 page, 420 x 595.
constexpr char kPage[] = "BT /F1 26 Tf 40 520 Td (Boarding pass) Tj ET\n"
                         "BT /F1 13 Tf 40 480 Td (Anna Berger) Tj\n"
                         "0 -24 Td (Ferry to the islands, 3 August 2023) Tj\n"
                         "0 -24 Td (Pier 2, departs 09:40, please be there at 09:10) Tj ET\n"
                         "0.1 0.4 0.7 RG 3 w 40 400 340 1 re S\n";

constexpr char kPageObject[] = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 420 595]"
                               " /Contents 4 0 R /Resources << /Font << /F1 5 0 R >> >> >>";

QByteArray stream(const QByteArray& content)
{
    return "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content
           + "endstream";
}

} // namespace

QByteArray ticket()
{
    const QByteArrayList objects{
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        kPageObject,
        stream(kPage),
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    };
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (int object = 0; object < objects.size(); ++object) {
        places += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(object + 1) + " 0 obj\n" + objects[object] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray tableAt = QByteArray::number(pdf.size());
    return pdf + "xref\n0 " + count + "\n" + places + "trailer\n<< /Size " + count
           + " /Root 1 0 R >>\nstartxref\n" + tableAt + "\n%%EOF\n";
}

} // namespace sample
