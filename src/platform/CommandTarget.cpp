#include "platform/CommandTarget.h"

namespace quill {

void CommandRoute::Append(const CommandRoute& route) {
  m_targets.insert(m_targets.end(), route.m_targets.begin(), route.m_targets.end());
}

std::vector<const CommandRow*> CommandRoute::Rows(int id) const {
  std::vector<const CommandRow*> rows;
  for (const CommandTarget* target : m_targets)
    for (const CommandRow& row : target->Rows())
      if (row.First <= id && id <= row.Last) rows.push_back(&row);
  return rows;
}

CommandState CommandRoute::State(int id) const {
  const auto rows = Rows(id);
  if (rows.empty()) return {.Enabled = false};
  CommandState state;
  if (rows.front()->Update) rows.front()->Update(id, state);
  state.Enabled = state.Enabled && rows.front()->Run;
  return state;
}

CommandResult CommandRoute::Run(int id, CommandCheck check) const {
  const auto rows = Rows(id);
  if (rows.empty()) return CommandResult::Unknown;
  if (!rows.front()->Run) return CommandResult::Disabled;
  if (check == CommandCheck::AsMenu && !State(id).Enabled) return CommandResult::Disabled;
  // The handler may end the window that owns the row: run a copy.
  const auto run = rows.front()->Run;
  run(id);
  return CommandResult::Done;
}

}  // namespace quill
