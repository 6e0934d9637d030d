#include "storage/sqlite_tree.h"

#include <algorithm>
#include <utility>

#include "numbers/text.h"

namespace starfolds {
namespace {

using enum TreeOutcome;
using Kind = TreeTransaction::Kind;

constexpr unsigned kUserFolderRights = 0700;
constexpr unsigned kMachineFolderRights = 0755;

/// A damaged file is set aside, and a new one created; a third attempt follows if another process
/// has done the same in between.
constexpr int kAttempts = 3;

/// Processor time for a look or change during `TreePatience::Rest`.
constexpr std::chrono::milliseconds kWorkAtRest{100};

bool IsFault(TreeOutcome outcome) { return outcome == Refused || outcome == Damaged; }

}  // namespace

SqliteTree::SqliteTree(const TreeFiles& files, Complaint complain, TreePatience patience,
                       GiveUp giveUp)
    : user_{files.User, kUserFolderRights},
      machine_{files.Machine, kMachineFolderRights},
      complain_(std::move(complain)),
      patience_(patience),
      giveUp_(std::move(giveUp)) {}

std::optional<std::string> SqliteTree::Read(Hive hive, std::string_view path,
                                            std::string_view name) {
  const TreePlace* const place = PlaceOf(hive);
  if (!place) return std::nullopt;
  std::string text;
  const Deed get = [&](TreeTransaction& from) { return from.Get(path, name, text); };
  TreeOutcome outcome = Nothing;
  if (!bulk_) {
    outcome = Once(*place, Kind::Look, get);
  } else if (hive == Hive::CurrentUser) {
    outcome = InBulk(get);
  } else {
    outcome = get(MachineOfBulk());
  }
  if (outcome != Done) return std::nullopt;
  return text;
}

bool SqliteTree::Write(Hive hive, std::string_view path, std::string_view name,
                       std::string_view text) {
  const Deed put = [&](TreeTransaction& to) { return to.Put(path, name, text); };
  if (bulk_ && hive == Hive::CurrentUser) return InBulk(put) == Done;
  const TreePlace* const place = PlaceOf(hive);
  const TreeOutcome outcome = place ? Once(*place, Kind::Make, put) : Refused;
  if (bulk_) bulk_->Worst = std::max(bulk_->Worst, outcome == Done ? Done : Refused);
  return outcome == Done;
}

bool SqliteTree::DeleteKey(Hive hive, std::string_view path) {
  const Deed remove = [&](TreeTransaction& from) { return from.Remove(path); };
  if (bulk_ && hive == Hive::CurrentUser) return InBulk(remove) == Done;
  const TreePlace* const place = PlaceOf(hive);
  return place && Once(*place, Kind::Change, remove) == Done;
}

bool SqliteTree::Begin(Access access) {
  bulk_ = std::make_unique<Bulk>();
  const Kind kind = access == Access::Change ? Kind::Make : Kind::Look;
  if (kind == Kind::Look) bulk_->User = &look_;
  for (int i = 0; i < kAttempts; ++i) {
    bulk_->Worst = bulk_->User->Begin(user_, kind, LimitsFor(kind));
    if (!MadeWayForNewFile(user_, bulk_->Worst, *bulk_->User)) break;
  }
  NoteTrouble(user_, *bulk_->User);
  return !IsFault(bulk_->Worst);
}

bool SqliteTree::End(bool keep) {
  const std::unique_ptr<Bulk> bulk = std::move(bulk_);
  TreeOutcome outcome = bulk->Worst;
  if (keep && !IsFault(outcome)) outcome = bulk->User->Commit();
  MadeWayForNewFile(user_, outcome, *bulk->User);
  NoteTrouble(user_, *bulk->User);
  EndLook(outcome);
  return keep && !IsFault(outcome);
}

const TreePlace* SqliteTree::PlaceOf(Hive hive) const {
  switch (hive) {
    case Hive::CurrentUser: return &user_;
    case Hive::LocalMachine: return &machine_;
    case Hive::ClassesRoot:
    case Hive::Users: break;
  }
  return nullptr;
}

TreeTransaction& SqliteTree::MachineOfBulk() {
  if (!bulk_->Machine) {
    bulk_->Machine.emplace().Begin(machine_, Kind::Look, LimitsFor(Kind::Look));
    NoteTrouble(machine_, *bulk_->Machine);
  }
  return *bulk_->Machine;
}

/// Runs a transaction for a single value.
TreeOutcome SqliteTree::Once(const TreePlace& place, Kind kind, const Deed& deed) {
  if (!bulk_ && kind == Kind::Look && &place == &user_) {
    const TreeOutcome outcome = Try(look_, place, kind, deed);
    EndLook(outcome);
    return outcome;
  }
  if (bulk_) bulk_->Machine.reset();  // its lock would block a change
  TreeOutcome outcome = Refused;
  for (int i = 0; i < kAttempts; ++i) {
    TreeTransaction transaction;
    outcome = Try(transaction, place, kind, deed);
    if (!MadeWayForNewFile(place, outcome, transaction)) break;
  }
  return outcome;
}

TreeOutcome SqliteTree::Try(TreeTransaction& transaction, const TreePlace& place, Kind kind,
                            const Deed& deed) {
  TreeOutcome outcome = transaction.Begin(place, kind, LimitsFor(kind));
  if (outcome == Done) outcome = deed(transaction);
  if (outcome == Done && kind != Kind::Look) outcome = transaction.Commit();
  NoteTrouble(place, transaction);
  return outcome;
}

/// After a failure the file is opened again for the next look.
void SqliteTree::EndLook(TreeOutcome outcome) {
  if (IsFault(outcome)) look_.Close();
  look_.EndLook();
}

TreeOutcome SqliteTree::InBulk(const Deed& deed) {
  const TreeOutcome outcome = deed(*bulk_->User);
  bulk_->Worst = std::max(bulk_->Worst, outcome);
  return outcome;
}

/// Ends a change that has found its file damaged, and sets the file aside. False if that did not
/// happen, so that another attempt would fail in the same way.
bool SqliteTree::MadeWayForNewFile(const TreePlace& place, TreeOutcome outcome,
                                   TreeTransaction& transaction) {
  if (outcome != Damaged || transaction.Is() != Kind::Make) return false;
  const std::optional<FileIdentity> damaged = transaction.Identity();
  transaction.Close();
  look_.Close();
  if (damaged) {
    const auto name = SetAside(place.File, *damaged, patience_.Look);
    if (name && complain_) {
      complain_({STARFOLDS_TEXT("%1 holds no settings that can be read; it is kept as %2"),
                 {Quoted(place.File), Quoted(*name)}});
    }
  }
  return LookAtFile(place.File).Identity != damaged;
}

TreeLimits SqliteTree::LimitsFor(Kind kind) const {
  if (IsResting()) return {{}, kWorkAtRest, giveUp_};
  return {kind == Kind::Look ? patience_.Look : patience_.Change, patience_.Work, giveUp_};
}

/// Complains about a look that timed out, and starts the rest. A change that found the file locked
/// is reported by its caller to the user, who can repeat it.
void SqliteTree::NoteTrouble(const TreePlace& place, const TreeTransaction& transaction) {
  const TreeTrouble trouble = transaction.Trouble();
  const bool locked = trouble == TreeTrouble::Locked && transaction.Is() == Kind::Look;
  if (!locked && trouble != TreeTrouble::TooMuch) return;
  if (IsResting()) return;
  restUntil_ = std::chrono::steady_clock::now() + patience_.Rest;
  if (!complain_) return;
  complain_({locked ? STARFOLDS_TEXT("%1 is locked by another process; its settings are ignored")
                    : STARFOLDS_TEXT("%1 takes too long to read; its settings are ignored"),
             {Quoted(place.File)}});
}

}  // namespace starfolds
