#include "storage/tree_transaction.h"

#include <sqlite3.h>

#include <algorithm>
#include <thread>
#include <utility>

#include "storage/processor_time.h"

namespace starfolds {
namespace {

using enum TreeOutcome;

/// NOCASE ignores the case of ASCII letters only. SQLite stores this text in the file. A table or
/// view with another text is treated as foreign, so if this text changes, the name of the table
/// must change as well.
constexpr const char* kMakeTable =
    "CREATE TABLE tree(path TEXT NOT NULL COLLATE NOCASE, name TEXT NOT NULL COLLATE NOCASE, "
    "text TEXT NOT NULL, PRIMARY KEY(path, name)) WITHOUT ROWID";
constexpr const char* kFindTable =
    "SELECT sql FROM sqlite_schema WHERE name = 'tree' COLLATE NOCASE";
constexpr const char* kGet = "SELECT text FROM tree WHERE path = ?1 AND name = ?2";
constexpr const char* kPut =
    "INSERT INTO tree VALUES (?1, ?2, ?3) "
    "ON CONFLICT (path, name) DO UPDATE SET text = excluded.text";
/// "]" is the character after "\": the range contains everything that begins with the path and "\".
constexpr const char* kRemove =
    "DELETE FROM tree WHERE path = ?1 OR (path > ?1 || '\\' AND path < ?1 || ']')";

/// No memory map, so that a file that is truncated meanwhile gives an error and not a signal; no
/// files in other folders; and validation of cells before they are used.
constexpr const char* kCareful =
    "PRAGMA mmap_size = 0; PRAGMA temp_store = MEMORY; PRAGMA cell_size_check = ON;";
/// If the deletion of a journal is lost by a power failure, the saved change is rolled back. EXTRA
/// flushes the folder as well, which costs about 4 ms more than FULL.
constexpr const char* kDurable = "PRAGMA synchronous = EXTRA; PRAGMA journal_mode = DELETE;";

/// Far more than this program's tree needs, and low enough that a malicious file cannot exhaust the
/// memory.
constexpr std::pair<int, int> kLimits[] = {
    {SQLITE_LIMIT_LENGTH, 1 << 20},    {SQLITE_LIMIT_SQL_LENGTH, 10'000},
    {SQLITE_LIMIT_COLUMN, 32},         {SQLITE_LIMIT_EXPR_DEPTH, 20},
    {SQLITE_LIMIT_COMPOUND_SELECT, 3}, {SQLITE_LIMIT_VDBE_OP, 25'000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
};
/// Memory of SQLite in this process. To compare a key SQLite reads its whole row, however long, in
/// one step that cannot be interrupted; a row of more than this fails at once.
constexpr sqlite3_int64 kMostMemory = sqlite3_int64{64} << 20;
constexpr int kStepsAtOnce = 1000;  // of SQLite's virtual machine; a value takes about 30

constexpr int kCopyFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
constexpr int kMostPages = 10'000;  // that are copied; a full tree has some hundred

constexpr int kLongestPause = 10;  // ms between two attempts to lock

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

/// SQLite's comparison without regard to case stops at a NUL: names that differ after it would be
/// equal.
bool IsKey(std::string_view text) { return text.find('\0') == std::string_view::npos; }

/// The text must live until the statement has run. A null pointer would be bound as NULL.
bool Bind(sqlite3_stmt* statement, int place, std::string_view text) {
  return sqlite3_bind_text64(statement, place, text.empty() ? "" : text.data(), text.size(),
                             SQLITE_STATIC, SQLITE_UTF8) == SQLITE_OK;
}

/// The bytes of a column of the current row; nullopt if it is NULL.
std::optional<std::string_view> Column(sqlite3_stmt* statement) {
  const unsigned char* const text = sqlite3_column_text(statement, 0);
  if (!text) return std::nullopt;
  return std::string_view(reinterpret_cast<const char*>(text),
                          static_cast<std::size_t>(sqlite3_column_bytes(statement, 0)));
}

/// Sets the limits, and disables everything in a file that could run code.
void Distrust(sqlite3* db) {
  sqlite3_hard_heap_limit64(kMostMemory);
  for (const auto& [limit, value] : kLimits) sqlite3_limit(db, limit, value);
  const std::pair<int, int> switches[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                          {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                          {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                          {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};
  for (const auto& [which, on] : switches) sqlite3_db_config(db, which, on, nullptr);
}

/// Checks the integrity of the whole database.
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

/// SQLite's own busy handler sleeps for up to a tenth of a second, during which a process that
/// saves repeatedly would always win.
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

/// Uses processor time, so that neither a busy nor a suspended machine counts as a slow file.
bool TreeTransaction::IsExhausted() {
  if (worked_ + ProcessorTime() - runningSince_ <= limits_.Work) return false;
  trouble_ = TreeTrouble::TooMuch;
  return true;
}

/// Most statements are too short for the progress handler; thousands of them are stopped here.
int TreeTransaction::Run(const std::function<int()>& statement) {
  runningSince_ = ProcessorTime();
  if (IsExhausted()) return SQLITE_INTERRUPT;
  const int code = statement();
  worked_ += ProcessorTime() - runningSince_;
  if ((code & 0xFF) == SQLITE_NOMEM) trouble_ = TreeTrouble::TooMuch;
  return code;
}

TreeOutcome TreeTransaction::Begin(const TreePlace& place, Kind kind, TreeLimits limits) {
  using State = FoundFile::State;
  // SQLite treats some relative names specially: "" and ":memory:" are not files.
  const bool hasPlace = IsAbsolutePath(place.File);
  const FoundFile found = hasPlace ? LookAtFile(place.File) : FoundFile{State::Missing, {}};
  const bool isOpen = db_ && kind == Kind::Look && kind_ == Kind::Look &&
                      found.Is == State::Plain && found.Identity == identity_;
  if (!isOpen) Close();
  identity_.reset();
  kind_ = kind;
  limits_ = std::move(limits);
  trouble_ = TreeTrouble::None;
  waited_ = {};
  worked_ = {};
  if (found.Is == State::Missing && (kind != Kind::Make || !hasPlace)) {
    withoutFile_ = kind == Kind::Make ? Refused : Nothing;
    return withoutFile_;
  }
  if (found.Is == State::OutOfReach) return Refused;
  if (found.Is == State::Plain) {
    identity_ = found.Identity;
  } else if (!MakeFolders(FolderOf(place.File), place.FolderRights)) {
    return Refused;
  }
  // SQLite creates a journal only if something changes. Storing the present value again must fail
  // as well: the program uses that to find out whether it can store anything.
  if (kind != Kind::Look && !CanMakeFilesBeside(place.File)) return Refused;
  TreeOutcome outcome = isOpen ? Done : Open(place.File);
  if (outcome == Done) outcome = StartTransaction();
  if (outcome == Done) outcome = FindTable();
  if (outcome == Done && kind != Kind::Look) outcome = Check();
  if (outcome != Done) Close();
  return outcome;
}

/// A look, too, opens the file for writing where that is allowed: the process that opens the file
/// next rolls back the changes of a process that was killed.
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

/// The first read from the file, which begins the snapshot.
TreeOutcome TreeTransaction::FindTable() {
  Statement find;
  if (const TreeOutcome outcome = Prepare(find, kFindTable); outcome != Done) return outcome;
  const int code = Step(find);
  hasTable_ = code == SQLITE_ROW;
  if (hasTable_ && Column(find.get()) != kMakeTable) return Damaged;
  return OutcomeOf(code);
}

/// A damaged file may accept a value and lose it, or lose others. So the whole file is checked
/// before a write; it is small.
TreeOutcome TreeTransaction::Check() {
  if (!hasTable_) return Done;
  TreeOutcome outcome = Refused;
  Run([&] {
    outcome = Examine(db_);
    return SQLITE_OK;
  });
  return outcome == Damaged ? CheckCopy() : outcome;
}

/// The integrity check reports a page that cannot be read as damage. In memory it only finds damage
/// of the contents.
TreeOutcome TreeTransaction::CheckCopy() {
  Execute("ROLLBACK");  // nothing has been changed yet, and a backup needs an idle connection
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
    outcome = Nothing;  // the program never stores texts of this length
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
  sqlite3_close(db_);  // rolls back what is not committed
  db_ = nullptr;
  hasTable_ = false;
  withoutFile_ = Refused;
}

/// Drops the page cache: the next look may be hours later, and changes made without SQLite would
/// not be noticed. Where an open file cannot be renamed it is closed, or no process could set a
/// damaged file aside while a saver runs.
void TreeTransaction::EndLook() {
  sqlite3_reset(get_.get());
  if (!kOpenFilesCanBeRenamed) return Close();
  const bool isSound = db_ && trouble_ == TreeTrouble::None;
  if (!isSound || (IsRunning() && Execute("COMMIT") != Done) || HasLog()) return Close();
  sqlite3_db_release_memory(db_);
}

/// Whether another program has switched the file to a write-ahead log. A change switches it back,
/// which is not possible while any process has it open.
bool TreeTransaction::HasLog() const {
  const char* const log = sqlite3_filename_wal(sqlite3_db_filename(db_, "main"));
  return LookAtFile(log).Is != FoundFile::State::Missing;
}

TreeOutcome TreeTransaction::MayChange() const {
  if (!db_) return withoutFile_;
  return kind_ != Kind::Look && IsRunning() ? Done : Refused;
}

/// Some errors, such as a full disk, make SQLite roll back the whole transaction. Later statements
/// would then be committed one by one.
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
