// SPDX-License-Identifier: MIT
// One file, lines ended by a line feed; names and all other cells quoted:
//
//   "Prefix","FirstName",...,"Notes","Phone 1 - Type","Phone 1 - Value","IM 1 - Type",...
//   "Dr.","Mia",...,"","mobile","+49 171 5550101","home","skype","mia"
#include "translators/contact/CContact2CSVTranslateTavero.h"

#include "exporters/CIDataExporter.h"
#include "exporters/escape.h"
#include "platform/literals.h"
#include "translators/contact/contact_cells.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

// The phone's key in small letters, not the name of the service.
QString service(CContactHelper& helper, const PRContactProperty& messenger)
{
    return helper.getPropValueEntry(&messenger, CContactHelper::VALUE_KEY_SERVICE).toLower();
}

// clang-format off
constexpr std::array kColumns{
    ContactColumn{"Prefix"_L1,        textCell<&ContactContent::namePrefix>},
    ContactColumn{"FirstName"_L1,     textCell<&ContactContent::firstName>},
    ContactColumn{"FirstNameYomi"_L1, textCell<&ContactContent::firstPhonetic>},
    ContactColumn{"MiddleName"_L1,    textCell<&ContactContent::middleName>},
    ContactColumn{"LastName"_L1,      textCell<&ContactContent::lastName>},
    ContactColumn{"LastNameYomi"_L1,  textCell<&ContactContent::lastPhonetic>},
    ContactColumn{"Suffix"_L1,        textCell<&ContactContent::nameSuffix>},
    ContactColumn{"NickName"_L1,      textCell<&ContactContent::nickname>},
    ContactColumn{"Company"_L1,       textCell<&ContactContent::organization>},
    ContactColumn{"Department"_L1,    textCell<&ContactContent::department>},
    ContactColumn{"JobTitle"_L1,      textCell<&ContactContent::jobTitle>},
    ContactColumn{"Birthday"_L1,      birthdayCell},
    ContactColumn{"Notes"_L1,         textCell<&ContactContent::note>},
};

constexpr std::array kAddress{
    PropertyColumn{"Address %1 - Type"_L1,        labelCell},
    PropertyColumn{"Address %1 - Street"_L1,      lineCell<CContactHelper::VALUE_KEY_STREET>},
    PropertyColumn{"Address %1 - City"_L1,        lineCell<CContactHelper::VALUE_KEY_CITY>},
    PropertyColumn{"Address %1 - State"_L1,       lineCell<CContactHelper::VALUE_KEY_STATE>},
    PropertyColumn{"Address %1 - Postal Code"_L1, lineCell<CContactHelper::VALUE_KEY_ZIP>},
    PropertyColumn{"Address %1 - Country"_L1,     lineCell<CContactHelper::VALUE_KEY_COUNTRY>},
};

constexpr std::array kDate{
    PropertyColumn{"Date %1 - Type"_L1,  labelCell},
    PropertyColumn{"Date %1 - Value"_L1, dayCell},
};

constexpr std::array kMessenger{
    PropertyColumn{"IM %1 - Type"_L1,    labelCell},
    PropertyColumn{"IM %1 - Service"_L1, service},
    PropertyColumn{"IM %1 - User"_L1,    userCell},
};

constexpr std::array kWebAddress{
    PropertyColumn{"URL %1 - Type"_L1,  labelCell},
    PropertyColumn{"URL %1 - Value"_L1, valueCell},
};

constexpr std::array kRelatedName{
    PropertyColumn{"Related %1 - Type"_L1,  labelCell},
    PropertyColumn{"Related %1 - Value"_L1, valueCell},
};

constexpr std::array kBlocks{
    PropertyBlock{Address,        kAddress},
    PropertyBlock{Phone,          kPhoneColumns},
    PropertyBlock{Email,          kEmailColumns},
    PropertyBlock{Date,           kDate},
    PropertyBlock{InstantMessage, kMessenger},
    PropertyBlock{WebAddress,     kWebAddress},
    PropertyBlock{RelatedName,    kRelatedName},
};
// clang-format on

} // namespace

bool CContact2CSVTranslateTavero::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    m_columns = ContactColumns(kColumns, kBlocks, data());
    QStringList names = m_columns.names();
    std::ranges::transform(names, names.begin(), csvQuote);
    return exporter->write(names.join(QChar(u',')) + QChar(u'\n'));
}

bool CContact2CSVTranslateTavero::writeHeader(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CContact2CSVTranslateTavero::writeFooter(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CContact2CSVTranslateTavero::writeItem(CIDataExporter* exporter, PRContactItem* item)
{
    return exporter->write(m_columns.row(m_helper, *item->detailContent()) + QChar(u'\n'));
}
