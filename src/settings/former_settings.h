// What becomes of the settings that a template, or a dialog that could not read them, replaces.
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/key_value_tree.h"
#include "settings/records.h"
#include "settings/template_file.h"

namespace starfolds {

/// A path, or why there is none.
struct KeptCopy {
  std::string Path;   // empty: there was nothing to keep
  std::string Fault;  // a reason for the user; empty: the copy is whole, and on the disk
};

/// Writes all stored settings as the template "former-settings-N.sfd" in `folder`, with the first
/// free number from 1. Settings that such a file holds already are not written again, and those
/// that the program comes with need no copy. When all 99 numbers are taken the last one is
/// replaced; no other copy ever is.
///
/// To be called within a change of the tree, which keeps other processes from choosing the same
/// number.
KeptCopy KeepFormerSettings(KeyValueTree& tree, Files& disk, const std::string& folder);

/// What an import from the command line has done.
struct TemplateImport {
  std::optional<std::string> Fault;  // a reason for the user; then nothing was stored
  std::string FormerSettings;        // the file that holds them; empty: there were none
};

/// `ImportTemplate` for a user who runs the program with a template: a tree without bodies gets the
/// factory's, the former settings are kept in `folder`, and somebody who had none is not taken for
/// a user of an earlier version.
TemplateImport ImportOverFormerSettings(TemplateFile& file, const std::string& path,
                                        KeyValueTree& tree, ProfileArray& profiles, Files& disk,
                                        const std::string& folder);

/// What the import did and how to undo it, for the terminal.
std::string ImportNote(const std::string& path, const TemplateImport& done);

}  // namespace starfolds
