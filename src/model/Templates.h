// The template library: ready-made subtrees kept in the template file the game data names, one
// block after the other, each described by a template record of the game data in the same order.
#pragma once

#include <memory>
#include <string>

#include "base/Result.h"
#include "base/TreeStore.h"

class CGameDatabase;
class CSession;
class CTemplateRecord;

// The template file's path. A relative one is taken from the target file's folder: the game data
// and its template library are kept together, while the editor may be started from any folder.
std::string TemplateFilePath(const CGameDatabase& database);

// Adds record as the last template, describing the subtree of entry: the target file is written
// with the record, then the subtree's lines and a line "</T>" are appended to the template file.
// When either write fails the record is taken out again and the target file written once more,
// so that the records and the blocks never disagree; the error then names every file that could
// not be written. The tree does not change.
CWriteResult SaveTemplate(CSession& session, HTREEITEM entry,
                          std::unique_ptr<CTemplateRecord> record);

// Inserts the template's items under parent after the sibling after (TVI_FIRST: in front of
// the children): one step of the history. Gives the first entry made, or none when the file does
// not open or holds no such block.
HTREEITEM InsertTemplate(CSession& session, const CTemplateRecord& record, HTREEITEM parent,
                         HTREEITEM after);
