#include "app/recovery_commands.h"

#include "app/project_commands.h"
#include "model/path_text.h"
#include "model/text_forms.h"

namespace tidemark {

std::string Lost_work_text(const LostWork& lost) {
    const std::string& path = lost.Unsaved.ProjectPath;
    const std::string project = path.empty() ? "A project without a name" : Last_part(path);
    return project + " was not saved when Tidemark ended.\n" +
           (path.empty() ? "" : "File: " + path + "\n") + "Last change kept: " + lost.Unsaved.Time +
           "\nIt has " + Counted(lost.Points(), "point") + ", " +
           Counted(lost.Polygons(), "polygon") + " and " +
           Counted(lost.ClearedCells(), "cleared cell") +
           ".\n\nRecover goes on with it, Discard removes it for good, "
           "Later asks again at the next start.";
}

void Recover(LostWork& lost, Recovery& recovery, Document& document, Session& session,
             Platform& platform, const ShowImage& show_image) {
    const std::string path = lost.Unsaved.ProjectPath;
    document.Do("recover " + (path.empty() ? "a project" : Last_part(path)), [&](Project& project) {
        project = *lost.Unsaved.Work;
        Take_over(path, project, session, platform.messages, show_image);
        session.Opened.FileSave = !path.empty();
    });
    session.DataChanged = true;
    recovery.Take_over(lost, document.State());
}

}  // namespace tidemark
