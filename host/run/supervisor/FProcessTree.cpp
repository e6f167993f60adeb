#include "host/run/supervisor/FProcessTree.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace {

using Children = std::multimap<pid_t, FProcessEntry>;

// "pid (name) state parent group …", where the name can contain blanks and parentheses.
void addProcess(const std::filesystem::path& folder, Children& children) {
    const pid_t pid = std::atoi(folder.filename().c_str());
    if (pid <= 0) {
        return;
    }
    std::ifstream file(folder / "stat");
    std::string line;
    std::getline(file, line);
    const std::size_t name = line.rfind(')');
    char state = 0;
    int parent = 0;
    int group = 0;
    if (name != std::string::npos && std::sscanf(line.c_str() + name + 1, " %c %d %d", &state, &parent, &group) == 3) {
        children.emplace(parent, FProcessEntry{pid, group, state == 'Z' || state == 'X'});
    }
}

Children readProcesses() {
    Children children;
    std::error_code error;
    std::filesystem::directory_iterator folder("/proc", error);
    for (; !error && folder != std::filesystem::directory_iterator(); folder.increment(error)) {
        addProcess(folder->path(), children);
    }
    return children;
}

void takeChildren(pid_t parent, Children& children, std::vector<FProcessEntry>& result) {
    const auto [first, last] = children.equal_range(parent);
    for (auto child = first; child != last; ++child) {
        result.push_back(child->second);
    }
    // Removed, since a process number that was reused while reading could otherwise cause an endless loop.
    children.erase(first, last);
}

}  // namespace

std::vector<FProcessEntry> descendants(pid_t ancestor) {
    Children children = readProcesses();
    std::vector<FProcessEntry> result;
    takeChildren(ancestor, children, result);
    for (std::size_t i = 0; i < result.size(); ++i) {
        takeChildren(result[i].pid, children, result);
    }
    return result;
}
