// SPDX-License-Identifier: MIT
// {"kind": "file", "values": ["summit.jpg"], "parent": "Alps", "path": "media/summit.jpg",
//  "detailDate": "2024-05-01T12:30:00Z"}
#include "model/PRFileItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

constexpr std::array kFields{
    bytes<&FileContent::data>("data"),
    path<&FileContent::path>("path"),
    path<&FileContent::thumbFile>("thumbFile"),
    path<&FileContent::thumbnail>("thumbnail"),
    flag<&FileContent::thumbToMedia>("thumbToMedia"),
    text<&FileContent::detailDate>("detailDate"),
};

FileContent contentsOf(PRFileItem& item)
{
    FileContent contents = item.contents();
    contents.path = item.filePath();
    contents.thumbFile = item.thumbFilePath();
    contents.thumbnail = item.thumbnail();
    return contents;
}

} // namespace

constinit const Kind kFileKind =
    kindOf<kFields, makeItem<PRFileItem, FileContent>, contentsOf>("file");

} // namespace recordset
