// Tabs beside a list that selects a page.
#pragma once

#include <QComboBox>
#include <QTabBar>

namespace starfolds {

/// Tabs with the entries of a list, which select the same: both always agree. `shortNames` replace
/// the entries, which become tool tips. Entries added later have no tab.
QTabBar* MakePageTabs(QComboBox& list, const QStringList& shortNames);

/// Selects the entry `steps` after the current one, and begins again at the other end.
void TurnPage(QComboBox& list, int steps);

}  // namespace starfolds
