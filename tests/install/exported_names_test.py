# SPDX-License-Identifier: MIT
"""The shared library offers the names of its contract and no others.

  exported_names_test.py NM LIBRARY
"""

import re
import subprocess
import sys
import unittest

NM, LIBRARY = sys.argv[1], sys.argv[2]

CONTRACT = re.compile(r"""
    (?: (?:typeinfo|typeinfo\ name|vtable)\ for\ |(?:non-)?virtual\ thunk\ to\ )?
    (?: CBackupExporter | CCommonUtils | CContactHelper | CIProgressCallback
      | CSubProgress | PR[A-Z]\w* | PathResolver | Ov[A-Z]\w* )
    (?: ::.* )?""", re.VERBOSE)
LOG = "Log(char const*, int, char const*, ...)"
A_HOST_NEEDS = (
    LOG,
    "CBackupExporter::cancelDownload()",
    "CBackupExporter::exportBackup(PRBackup*, QDir const&, CIProgressCallback*, bool, QString)",
    "CContactHelper::CATE_MOBILE",
    "CContactHelper::CContactHelper(CContactHelper const&)",
    "CContactHelper::convertLabel(QString const&, bool)",
    "CContactHelper::getDateDesc(QDateTime, char const*)",
    "OvResourceMgr::instance()",
    "PRBackup::add(std::unique_ptr<PRData, std::default_delete<PRData> >)",
    "PRSMSItem::PRSMSItem(Record, SmsConversation)",
    "typeinfo for CIProgressCallback",
    "vtable for PRSMSItem",
)


def offered_names():
    listed = subprocess.run(
        [NM, "-DC", "--defined-only", LIBRARY], check=True, capture_output=True, text=True).stdout
    # "00000000000fb2c0 T PRData::~PRData()"; a name of absolute value has a blank address
    return {re.sub(r"^[0-9a-f ]* [A-Za-z] ", "", line) for line in listed.splitlines()}


class ExportedNames(unittest.TestCase):
    def test_nothing_outside_the_contract_is_offered(self):
        others = {name for name in offered_names() if name != LOG and not CONTRACT.fullmatch(name)}
        self.assertEqual(others, set())

    def test_what_a_host_needs_is_offered(self):
        self.assertEqual(set(A_HOST_NEEDS) - offered_names(), set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
