// The list by memo: the memo files in place of contacts.
#pragma once

#include "list/ListState.h"
#include "memo/MemoState.h"

namespace quill {

// Lists the memos that the filter lets through, anew from the folder, and moves Top into the scroll
// range. Memos that are still listed stay selected, wherever they stand now.
void BuildMemoPage(ListState& list, MemoState& memo);

// Shows what is listed already from Top on, after the rows of a page have become more or fewer.
void FitMemoPage(ListState& list);

}  // namespace quill
