#pragma once

class QQuickWindow;

namespace Gallery
{

struct Options;
struct Session;

/// What the options for pictures do. The functions return the exit status of the program and write to stderr why it is
/// not Success. Lookups that have failed since the last MessageLog::takeNew() are failures.
namespace PictureCommands
{

/// For --screenshot and --screenshot-all.
int takeScreenshots(QQuickWindow& window, Session& session, const Options& options);

/// For --contact-sheet.
int takeContactSheet(Session& session, const Options& options);

} // namespace PictureCommands

} // namespace Gallery
