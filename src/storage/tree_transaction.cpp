#include "storage/tree_transaction.h"

#include <sqlite3.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace starfolds {
namespace {

using enum TreeOutcome;

/// NOCASE folds the letters of ASCII and no others. SQLite keeps this text in the file. A table or
/// view with any other text is not ours, so if this one ever changes its name has to change as
/// well.
constexpr const char* kMakeTable =
    "CREATE TABLE tree(path TEXT NOT NULL COLLATE NOCASE, name TEXT NOT NULL COLLATE NOCASE, "
    "text TEXT NOT NULL, PRIMARY KEY(path, name)) WITHOUT ROWID";
constexpr const char* kFindTable =
    "SELECT sql FROM sqlite_schema WHERE name = 'tree' COLLATE NOCASE";
constexpr const char* kGet = "SELECT text FROM tree WHERE path = ?1 AND name = ?2";
constexpr const char* kPut =
    "INSERT INTO tree VALUES (?1, ?2, ?3) "
    "ON CONFLICT (path, name) DO UPDATE SET text = excluded.text";
/// "]" comes next after "\": what lies between is all that begins with the path and a "\".
constexpr const char* kRemove =
    "DELETE FROM tree WHERE path = ?1 OR (path > ?1 || '\\' AND path < ?1 || ']')";

/// No memory map, so that a file that becomes shorter meanwhile is an error and no signal; nothing
/// in other folders; and cells that are checked before they are believed.
constexpr const char* kCareful =
    "PRAGMA mmap_size = 0; PRAGMA temp_store = MEMORY; PRAGMA cell_size_check = ON;";
/// A journal whose deletion is lost with the power undoes what was saved: EXTRA writes the folder
/// out, too, which costs some 4 ms more than FULL.
constexpr const char* kDurable = "PRAGMA synchronous = EXTRA; PRAGMA journal_mode = DELETE;";

/// Far more than a tree of this program needs, and small enough that a file made by an enemy cannot
/// fill the memory.
constexpr std::pair<int, int> kLimits[] = {
    {SQLITE_LIMIT_LENGTH, 1 << 20},    {SQLITE_LIMIT_SQL_LENGTH, 10'000},
    {SQLITE_LIMIT_COLUMN, 32},         {SQLITE_LIMIT_EXPR_DEPTH, 20},
    {SQLITE_LIMIT_COMPOUND_SELECT, 3}, {SQLITE_LIMIT_VDBE_OP, 25'000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
};
constexpr int kStepsAtOnce = 1000;  // of SQLite's machine; a value read or written takes some 30

constexpr int kCopyFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
constexpr int kMostPages = 10'000;  // that are copied; a full tree has some hundred

constexpr int kLongestPause = 10;  // ms between two tries for a lock

TreeOutcome OutcomeOf(int code) {
  switch (code & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE: return Done;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return Damaged;
    default: return Refused;
  }
}

/// In SQLite's comparison without regard to case a NUL ends the text: names that differ after one
/// would be the same.
bool IsKey(std::string_view text) { return text.find('\0') == std::string_view::npos; }

/// The text must live until the statement has run. A null pointer would be bound as no value.
bool Bind(sqlite3_stmt* statement, int place, std::string_view text) {
  return sqlite3_bind_text64(statement, place, text.empty() ? "" : text.data(), text.size(),
                             SQLITE_STATIC, SQLITE_UTF8) == SQLITE_OK;
}

/// The bytes of a column of the present row; nothing where it holds no value.
std::optional<std::string_view> Column(sqlite3_stmt* statement) {
  const unsigned char* const text = sqlite3_column_text(statement, 0);
  if (!text) return std::nullopt;
  return std::string_view(reinterpret_cast<const char*>(text),
                          static_cast<std::size_t>(sqlite3_column_bytes(statement, 0)));
}

/// Nothing that a file brings with it is run.
void Distrust(sqlite3* db) {
  for (const auto& [limit, value] : kLimits) sqlite3_limit(db, limit, value);
  const std::pair<int, int> switches[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                          {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                          {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                          {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};
  for (const auto& [which, on] : switches) sqlite3_db_config(db, which, on, nullptr);
}

/// Whether the whole database is sound.
TreeOutcome Examine(sqlite3* db) {
  sqlite3_stmt* check = nullptr;
  int code = sqlite3_prepare_v2(db, "PRAGMA integrity_check(1)", -1, &check, nullptr);
  if (code == SQLITE_OK) code = sqlite3_step(check);
  const bool sound = code != SQLITE_ROW || Column(check) == "ok";
  sqlite3_finalize(check);
  return sound ? OutcomeOf(code) : Damaged;
}

}  // namespace

void TreeTransaction::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

/// SQLite's own waiting pauses for up to a tenth of a second, in which a process that saves over
/// and over would always come first.
int TreeTransaction::WaitForLock(void* self, int tries) {
  auto& transaction = *static_cast<TreeTransaction*>(self);
  const TreeLimits& limits = transaction.limits_;
  if (limits.GiveUp && limits.GiveUp()) {
    transaction.trouble_ = TreeTrouble::AskedToStop;
    return 0;
  }
  if (transaction.waited_ >= limits.Wait) {
    transaction.trouble_ = TreeTrouble::Locked;
    return 0;
  }
  const auto begin = std::chrono::steady_clock::now();
  std::this_thread::sleep_for(std::chrono::milliseconds(std::min(tries + 1, kLongestPause)));
  transaction.waited_ += std::chrono::steady_clock::now() - begin;
  return 1;
}

int TreeTransaction::StopIfEndless(void* self) {
  return static_cast<TreeTransaction*>(self)->IsExhausted() ? 1 : 0;
}

/// Time of the processor, so that neither a busy machine nor a sleeping one makes a file endless.
bool TreeTransaction::IsExhausted() {
  const auto worked = static_cast<double>(worked_ + std::clock() - runningSince_);
  if (worked / CLOCKS_PER_SEC <= std::chrono::duration<double>(limits_.Work).count()) return false;
  trouble_ = TreeTrouble::TooMuch;
  return true;
}

/// Most statements are too short to be stopped by the handler. Thousands of them are stopped here.
int TreeTransaction::Run(const std::function<int()>& statement) {
  runningSince_ = std::clock();
  if (IsExhausted()) return SQLITE_INTERRUPT;
  const int code = statement();
  worked_ += std::clock() - runningSince_;
  return code;
}

TreeOutcome TreeTransaction::Begin(const TreePlace& place, Kind kind, TreeLimits limits) {
  using State = FoundFile::State;
  // SQLite understands relative names otherwise: "" and ":memory:" are no files.
  const bool hasPlace = place.File.starts_with('/');
  const FoundFile found = hasPlace ? LookAtFile(place.File) : FoundFile{State::Missing, {}};
  const bool isOpen = db_ && kind == Kind::Look && kind_ == Kind::Look &&
                      found.Is == State::Plain && found.Identity == identity_;
  if (!isOpen) Close();
  identity_.reset();
  kind_ = kind;
  limits_ = std::move(limits);
  trouble_ = TreeTrouble::None;
  waited_ = {};
  worked_ = 0;
  if (found.Is == State::Missing && (kind != Kind::Make || !hasPlace)) {
    withoutFile_ = kind == Kind::Make ? Refused : Nothing;
    return withoutFile_;
  }
  if (found.Is == State::OutOfReach) return Refused;
  if (found.Is == State::Plain) {
    identity_ = found.Identity;
  } else if (!MakeFolders(place.File.substr(0, place.File.find_last_of('/')), place.FolderRights)) {
    return Refused;
  }
  // SQLite makes a journal only where something changes. To store what is there already shall fail
  // as well: by that the program finds out whether it can store at all.
  if (kind != Kind::Look && !CanMakeFilesBeside(place.File)) return Refused;
  TreeOutcome outcome = isOpen ? Done : Open(place.File);
  if (outcome == Done) outcome = StartTransaction();
  if (outcome == Done) outcome = FindTable();
  if (outcome == Done && kind != Kind::Look) outcome = Check();
  if (outcome != Done) Close();
  return outcome;
}

/// Also for a look the file is opened for writing where that is allowed: a save that was killed is
/// undone by whoever opens the file next.
TreeOutcome TreeTransaction::Open(const std::string& file) {
  const int flags = SQLITE_OPEN_READWRITE | (kind_ == Kind::Make ? SQLITE_OPEN_CREATE : 0) |
                    SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE;
  const int code = sqlite3_open_v2(file.c_str(), &db_, flags, nullptr);
  if (code != SQLITE_OK) return OutcomeOf(code);
  if (kind_ != Kind::Look && sqlite3_db_readonly(db_, "main") != 0) return Refused;
  Distrust(db_);
  sqlite3_busy_handler(db_, WaitForLock, this);
  sqlite3_progress_handler(db_, kStepsAtOnce, StopIfEndless, this);
  return Execute(kCareful);
}

TreeOutcome TreeTransaction::StartTransaction() {
  if (kind_ == Kind::Look) return Execute("BEGIN");
  const TreeOutcome outcome = Execute(kDurable);
  return outcome == Done ? Execute("BEGIN IMMEDIATE") : outcome;
}

/// The first look into the file: from here on its state is held.
TreeOutcome TreeTransaction::FindTable() {
  Statement find;
  if (const TreeOutcome outcome = Prepare(find, kFindTable); outcome != Done) return outcome;
  const int code = Step(find);
  hasTable_ = code == SQLITE_ROW;
  if (hasTable_ && Column(find.get()) != kMakeTable) return Damaged;
  return OutcomeOf(code);
}

/// A damaged file may take a value and not find it again, or lose others over it. So nothing is
/// written before all of the file has been looked at; it is small.
TreeOutcome TreeTransaction::Check() {
  if (!hasTable_) return Done;
  TreeOutcome outcome = Refused;
  Run([&] {
    outcome = Examine(db_);
    return SQLITE_OK;
  });
  return outcome == Damaged ? CheckCopy() : outcome;
}

/// The examination takes a page that the disk does not give for a damaged one. In memory it can
/// only find what is really wrong with the contents.
TreeOutcome TreeTransaction::CheckCopy() {
  Execute("ROLLBACK");  // nothing has been changed, and a copy is not made of what is being changed
  sqlite3* copy = nullptr;
  TreeOutcome outcome = OutcomeOf(sqlite3_open_v2(":memory:", &copy, kCopyFlags, nullptr));
  sqlite3_backup* const backup =
      outcome == Done ? sqlite3_backup_init(copy, "main", db_, "main") : nullptr;
  if (!backup || sqlite3_backup_step(backup, kMostPages) != SQLITE_DONE) outcome = Refused;
  sqlite3_backup_finish(backup);
  if (outcome == Done) {
    Distrust(copy);
    sqlite3_progress_handler(copy, kStepsAtOnce, StopIfEndless, this);
    Run([&] {
      outcome = Examine(copy);
      return SQLITE_OK;
    });
  }
  sqlite3_close(copy);
  return outcome == Damaged ? Damaged : Refused;
}

TreeOutcome TreeTransaction::MakeTable() {
  const TreeOutcome outcome = Execute(kMakeTable);
  hasTable_ = outcome == Done;
  return outcome;
}

TreeOutcome TreeTransaction::Get(std::string_view path, std::string_view name, std::string& text) {
  if (!db_) return withoutFile_;
  if (!IsRunning()) return Refused;
  if (!hasTable_ || !IsKey(path) || !IsKey(name)) return Nothing;
  if (const TreeOutcome outcome = Prepare(get_, kGet); outcome != Done) return outcome;
  if (!Bind(get_.get(), 1, path) || !Bind(get_.get(), 2, name)) return Refused;
  const int code = Step(get_);
  TreeOutcome outcome = OutcomeOf(code);
  if (code == SQLITE_ROW) {
    const auto found = Column(get_.get());
    if (found) {
      text = *found;
    } else {
      outcome = Nothing;
    }
  } else if (code == SQLITE_DONE || (code & 0xFF) == SQLITE_TOOBIG) {
    outcome = Nothing;  // so long a text was never stored by us
  }
  sqlite3_reset(get_.get());
  return outcome;
}

TreeOutcome TreeTransaction::Put(std::string_view path, std::string_view name,
                                 std::string_view text) {
  TreeOutcome outcome = MayChange();
  if (outcome == Done && (!IsKey(path) || !IsKey(name))) outcome = Refused;
  if (outcome == Done && !hasTable_) outcome = MakeTable();
  if (outcome == Done) outcome = Prepare(put_, kPut);
  if (outcome != Done) return outcome;
  if (!Bind(put_.get(), 1, path) || !Bind(put_.get(), 2, name) || !Bind(put_.get(), 3, text)) {
    return Refused;
  }
  const int code = Step(put_);
  sqlite3_reset(put_.get());
  return OutcomeOf(code);
}

TreeOutcome TreeTransaction::Remove(std::string_view path) {
  TreeOutcome outcome = MayChange();
  if (outcome == Done && (!hasTable_ || !IsKey(path))) outcome = Nothing;
  if (outcome == Done) outcome = Prepare(remove_, kRemove);
  if (outcome != Done) return outcome;
  if (!Bind(remove_.get(), 1, path)) return Refused;
  const int code = Step(remove_);
  sqlite3_reset(remove_.get());
  if (code == SQLITE_DONE && sqlite3_changes(db_) == 0) return Nothing;
  return OutcomeOf(code);
}

TreeOutcome TreeTransaction::Commit() {
  if (!db_) return withoutFile_;
  return IsRunning() ? Execute("COMMIT") : Refused;
}

void TreeTransaction::Close() {
  for (Statement* statement : {&get_, &put_, &remove_}) statement->reset();
  sqlite3_close(db_);  // takes back what is pending
  db_ = nullptr;
  hasTable_ = false;
  withoutFile_ = Refused;
}

/// The pages that were read are not kept: the next look may be hours away, and what others write
/// without SQLite would not be seen.
void TreeTransaction::EndLook() {
  sqlite3_reset(get_.get());
  const bool isSound = db_ && trouble_ == TreeTrouble::None;
  if (!isSound || (IsRunning() && Execute("COMMIT") != Done) || HasLog()) return Close();
  sqlite3_db_release_memory(db_);
}

/// Whether a stranger has switched the file to a log. It cannot be switched back, which every
/// change does, while anybody has it open.
bool TreeTransaction::HasLog() const {
  const char* const log = sqlite3_filename_wal(sqlite3_db_filename(db_, "main"));
  return LookAtFile(log).Is != FoundFile::State::Missing;
}

TreeOutcome TreeTransaction::MayChange() const {
  if (!db_) return withoutFile_;
  return kind_ != Kind::Look && IsRunning() ? Done : Refused;
}

/// Some faults, such as a full disk, make SQLite end the whole transaction. What came after would
/// be stored by itself.
bool TreeTransaction::IsRunning() const { return sqlite3_get_autocommit(db_) == 0; }

TreeOutcome TreeTransaction::Prepare(Statement& statement, const char* sql) {
  if (statement) return Done;
  sqlite3_stmt* made = nullptr;
  const int code = Run([&] { return sqlite3_prepare_v2(db_, sql, -1, &made, nullptr); });
  statement.reset(made);
  return OutcomeOf(code);
}

TreeOutcome TreeTransaction::Execute(const char* sql) {
  return OutcomeOf(Run([&] { return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }));
}

int TreeTransaction::Step(const Statement& statement) {
  return Run([&] { return sqlite3_step(statement.get()); });
}

}  // namespace starfolds
