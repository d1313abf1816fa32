// SPDX-License-Identifier: MIT
#pragma once

class CIDataExporter;
class Page;
class PRNoteItem;

/// Draws the pieces of a note as a cell of its row, and hands its pictures to `exporter`.
void drawNoteCell(Page& page, const PRNoteItem& note, CIDataExporter* exporter);
