// Saves settings before a template, or a dialog that could not read them, replaces them.
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/key_value_tree.h"
#include "platform/user_text.h"
#include "settings/records.h"
#include "settings/template_file.h"

namespace starfolds {

/// The path of a copy, or why there is none.
struct KeptCopy {
  std::string Path;   // empty if there was nothing to save
  std::string Fault;  // a reason for the user; empty if the copy is complete, and on the disk
};

/// Writes all stored settings as the template "former-settings-N.sfd" in `folder`, with the first
/// free number from 1. Settings that such a file contains already are not written again, and the
/// factory settings are not copied. If all 99 numbers are in use, the last one is replaced; other
/// copies never are.
///
/// Must be called inside a write transaction of the tree, so that no other process chooses the same
/// number.
KeptCopy KeepFormerSettings(KeyValueTree& tree, Files& disk, const std::string& folder);

/// The result of an import from the command line.
struct TemplateImport {
  std::optional<UserText> Fault;  // a reason for the user; then nothing was stored
  std::string FormerSettings;     // the file with the copy; empty if there is none
};

/// `ImportTemplate` for a user who runs the program with a template: a tree without bodies gets the
/// factory's, the former settings are kept in `folder`, and somebody who had none is not taken for
/// a user of an earlier version.
TemplateImport ImportOverFormerSettings(TemplateFile& file, const std::string& path,
                                        KeyValueTree& tree, ProfileArray& profiles, Files& disk,
                                        const std::string& folder);

/// The text for the terminal, in the language that `shown` gives: what the import did, and how to
/// undo it.
std::string ImportNote(const std::string& path, const TemplateImport& done, const ShownText& shown);

}  // namespace starfolds
