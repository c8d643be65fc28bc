// The classes of which the controller's header knows no more than the name.
#pragma once

class ActivityLog;
class MainWindow;
class QSettings;
class ListTableView;
class Window_Activity_Log;
class Window_Colors;
class Window_Data_Copy_Folders;
class Window_New_Disc;
class Window_Operation_Terminated;
class Window_Performing_Operation;
class Window_Progress;
class Window_Unique_Progress;
class Window_Video_Settings;
namespace Ui {
class MainWindow;
}
namespace runner {
class ToolRun;
struct ToolEnd;
} // namespace runner

namespace writing {
class FolderGathering;
class Job;
enum class Stage;
struct Outcome;
struct Work;
} // namespace writing

struct Compilation;
