// As desktops agree on it.
#include <cstdlib>

#include "platform/folder.h"

namespace tidemark {

std::string State_folder() {
    const char* const state = std::getenv("XDG_STATE_HOME");
    if (state && *state == '/') return std::string(state) + "/tidemark";  // others do not count
    const char* const home = std::getenv("HOME");
    return home && *home == '/' ? std::string(home) + "/.local/state/tidemark" : "";
}

}  // namespace tidemark
