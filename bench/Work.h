// The pieces of work that main.cpp offers. Each prints what it cost and answers an exit status.
#pragma once

#include <QStringList>

/// Lists these files as the file dialog would, in the whole window.
int addFiles(const QStringList &paths);

/// Sorts a list of so many made-up rows by each column both ways, refreshes the table and paints it, in the
/// whole window. The slowest counts.
int sortRows(const QStringList &count);

/// Copies the folder of the first path into that of the second, as a data disc is gathered.
int stageFolder(const QStringList &paths);

/// Measures a folder as the data list does, and prints its bytes as the result.
int measureFolder(const QStringList &path);
