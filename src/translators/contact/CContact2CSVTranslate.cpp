// SPDX-License-Identifier: MIT
// One file, lines ended by a comma and a line feed; names bare, all other cells quoted:
//
//   Given Name,Additional Name,...,IM 1 - Service,IM 1 - Value,Phone 1 - Type,Phone 1 - Value,
//   "Mia","",...,"QQ ::: Skype","123 ::: mia","mobile","+49 171 5550101",
#include "translators/contact/CContact2CSVTranslate.h"

#include "exporters/CIDataExporter.h"
#include "platform/literals.h"
#include "translators/contact/contact_cells.h"

#include <QStringList>

#include <array>

namespace {

// In small letters the services are keys; here they go by their names.
QString service(CContactHelper& helper, const PRContactProperty& messenger)
{
    return helper.convertSpecialValue(
        helper.getPropValueEntry(&messenger, CContactHelper::VALUE_KEY_SERVICE));
}

// All messengers share one cell, the last one first. Those without a text keep their place, so that
// the n-th service belongs to the n-th user.
template <QString (*kPart)(CContactHelper&, const PRContactProperty&)>
QString messengers(CContactHelper& helper, const PRContactPrivate& contact)
{
    QStringList parts;
    for (const PRContactProperty* property : contact.properties()) {
        if (property->propType() == InstantMessage) {
            parts.prepend(kPart(helper, *property));
        }
    }
    return parts.join(" ::: "_L1);
}

// The state has no column of its own.
QString cityAndState(CContactHelper& helper, const PRContactProperty& address)
{
    const QString city = lineCell<CContactHelper::VALUE_KEY_CITY>(helper, address);
    const QString state = lineCell<CContactHelper::VALUE_KEY_STATE>(helper, address);
    const bool both = !city.isEmpty() && !state.isEmpty();
    return both ? city + QChar(u' ') + state : city + state;
}

// Two columns that nothing fills belong to the format.
// clang-format off
constexpr std::array kColumns{
    ContactColumn{"Given Name"_L1,                  textCell<&ContactContent::firstName>},
    ContactColumn{"Additional Name"_L1,             textCell<&ContactContent::middleName>},
    ContactColumn{"Family Name"_L1,                 textCell<&ContactContent::lastName>},
    ContactColumn{"Given Name Yomi"_L1,             textCell<&ContactContent::firstPhonetic>},
    ContactColumn{"Additional Name Yomi"_L1,        nullptr},
    ContactColumn{"Family Name Yomi"_L1,            textCell<&ContactContent::lastPhonetic>},
    ContactColumn{"Name Prefix"_L1,                 textCell<&ContactContent::namePrefix>},
    ContactColumn{"Name Suffix"_L1,                 textCell<&ContactContent::nameSuffix>},
    ContactColumn{"Nickname"_L1,                    textCell<&ContactContent::nickname>},
    ContactColumn{"Birthday"_L1,                    birthdayCell},
    ContactColumn{"Notes"_L1,                       textCell<&ContactContent::note>},
    ContactColumn{"Organization 1 - Type"_L1,       nullptr},
    ContactColumn{"Organization 1 - Name"_L1,       textCell<&ContactContent::organization>},
    ContactColumn{"Organization 1 - Title"_L1,      textCell<&ContactContent::jobTitle>},
    ContactColumn{"Organization 1 - Department"_L1, textCell<&ContactContent::department>},
    ContactColumn{"IM 1 - Service"_L1,              messengers<service>},
    ContactColumn{"IM 1 - Value"_L1,                messengers<userCell>},
};

constexpr std::array kAddress{
    PropertyColumn{"Address %1 - Type"_L1,        labelCell},
    PropertyColumn{"Address %1 - City"_L1,        cityAndState},
    PropertyColumn{"Address %1 - Street"_L1,      lineCell<CContactHelper::VALUE_KEY_STREET>},
    PropertyColumn{"Address %1 - Postal Code"_L1, lineCell<CContactHelper::VALUE_KEY_ZIP>},
    PropertyColumn{"Address %1 - Country"_L1,     lineCell<CContactHelper::VALUE_KEY_COUNTRY>},
};

constexpr std::array kEvent{
    PropertyColumn{"Event %1 - Type"_L1,  labelCell},
    PropertyColumn{"Event %1 - Value"_L1, dayCell},
};

constexpr std::array kWebsite{
    PropertyColumn{"Website %1 - Type"_L1,  labelCell},
    PropertyColumn{"Website %1 - Value"_L1, valueCell},
};

constexpr std::array kBlocks{
    PropertyBlock{Address,    kAddress},
    PropertyBlock{Phone,      kPhoneColumns},
    PropertyBlock{Email,      kEmailColumns},
    PropertyBlock{Date,       kEvent},
    PropertyBlock{WebAddress, kWebsite},
};
// clang-format on

// What follows the last name and the last cell: readers see one more field, an empty one.
constexpr auto kRowEnd = ",\n"_L1;

} // namespace

bool CContact2CSVTranslate::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    m_columns = ContactColumns(kColumns, kBlocks, data());
    // The names go out bare, unlike every other cell.
    return exporter->write(m_columns.names().join(QChar(u',')) + kRowEnd);
}

bool CContact2CSVTranslate::writeHeader(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CContact2CSVTranslate::writeFooter(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CContact2CSVTranslate::writeItem(CIDataExporter* exporter, PRContactItem* item)
{
    return exporter->write(m_columns.row(m_helper, *item->detailContent()) + kRowEnd);
}
