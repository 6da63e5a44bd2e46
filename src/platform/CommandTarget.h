// Commands: a target owns a table of commands; a window asks its targets in order (its route).
#pragma once

#include <functional>
#include <vector>

namespace quill {

struct CommandState {
  bool Enabled = true;
  bool Checked = false;
};

// The commands from First to Last (inclusive). Run gets the id. Update, when there is one, corrects
// the state that a menu shows; a row without Run is a command that cannot be carried out yet and is
// disabled.
struct CommandRow {
  int First = 0;
  int Last = 0;
  std::function<void(int id)> Run = {};
  std::function<void(int id, CommandState& state)> Update = {};
};

// A class with commands of its own derives from this and hands its table over.
class CommandTarget {
 public:
  explicit CommandTarget(std::vector<CommandRow> rows) : m_rows(std::move(rows)) {}
  virtual ~CommandTarget() = default;
  CommandTarget(const CommandTarget&) = delete;
  CommandTarget& operator=(const CommandTarget&) = delete;

  const std::vector<CommandRow>& Rows() const { return m_rows; }

 private:
  std::vector<CommandRow> m_rows;
};

enum class CommandResult { Done, Disabled, Unknown };
enum class CommandCheck { AsMenu, Anyway };  // Anyway: whatever the update handler says

// The targets that a window asks, first to last. Does not own them.
class CommandRoute {
 public:
  void Add(const CommandTarget& target) { m_targets.push_back(&target); }
  void Append(const CommandRoute& route);

  // The rows that handle this id, in the order of the route.
  std::vector<const CommandRow*> Rows(int id) const;
  CommandState State(int id) const;
  CommandResult Run(int id, CommandCheck check) const;

 private:
  std::vector<const CommandTarget*> m_targets;
};

}  // namespace quill
