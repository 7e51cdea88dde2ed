// Includes point down: app -> main window -> windows -> widgets -> core, and
// inside the core platform -> books -> engine -> the open ledger. This test reads
// the #include lines of every source file and names each one that points up,
// and each circle of folders that include each other.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// How high a file stands: it may include files of its own height and below,
// and only the command line includes the command line. The core stands lowest,
// platform -> books -> engine -> the rest (the open ledger, and the core halves
// of reports, charts, exchange, update); the command line stands on the core.
// relative: a path under src/ with "/" separators.
int heightOf(const std::string& relative)
{
    if (relative.starts_with("app/"))
        return 7;
    if (relative.starts_with("mainwindow/"))
        return 6; // a dialog never reaches up into the main window
    if (relative.starts_with("widgets/") || relative.starts_with("books/rowtable/ui/")
        || relative.starts_with("platform/ui/"))
        return 4;
    if (relative.find("/ui/") != std::string::npos)
        return 5;
    const char* const core[] = {"platform/", "books/", "engine/"};
    for (int rank = 0; rank < 3; ++rank) {
        if (relative.starts_with(core[rank]))
            return rank;
    }
    return 3;
}

bool inCore(const std::string& relative)
{
    return heightOf(relative) <= 3 && !relative.starts_with("cli/");
}

bool includeAllowed(const std::string& from, const std::string& to)
{
    if (to.starts_with("cli/"))
        return from.starts_with("cli/");
    return heightOf(to) <= heightOf(from);
}

struct IncludeLine {
    std::string file; // relative to the source root
    int line;
    std::string target;
    bool angled;
};

std::vector<IncludeLine> includesOf(const fs::path& root)
{
    static const std::regex includeLine(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<IncludeLine> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        const std::string extension = entry.path().extension().string();
        if (!entry.is_regular_file() || (extension != ".cpp" && extension != ".h"))
            continue;
        const std::string relative = entry.path().lexically_relative(root).generic_string();
        std::ifstream in(entry.path());
        std::string text;
        for (int number = 1; std::getline(in, text); ++number) {
            std::smatch match;
            if (std::regex_search(text, match, includeLine))
                found.push_back({relative, number, match[2].str(), match[1].str() == "<"});
        }
    }
    std::sort(found.begin(), found.end(),
              [](const IncludeLine& a, const IncludeLine& b) { return std::tie(a.file, a.line) < std::tie(b.file, b.line); });
    return found;
}

// A header of Qt's widget or printing modules, which need a widget application.
bool isWidgetHeader(const std::string& target)
{
    const std::string module = target.substr(0, target.find('/'));
    return module == "QtWidgets" || module == "QtPrintSupport"
        || fs::exists(fs::path(QUILLMARK_QT_WIDGETS_HEADERS) / target)
        || fs::exists(fs::path(QUILLMARK_QT_PRINTSUPPORT_HEADERS) / target);
}

// A project include, as a path relative to the root, or "" for anything else.
std::string projectFile(const fs::path& root, const IncludeLine& include)
{
    if (include.angled)
        return {};
    if (!include.target.starts_with(".") && fs::exists(root / include.target))
        return include.target;
    const fs::path beside = (root / include.file).parent_path() / include.target;
    if (fs::exists(beside))
        return beside.lexically_normal().lexically_relative(root).generic_string();
    return {};
}

using FolderEdges = std::map<std::string, std::set<std::string>>;

// Whether the includes lead from one folder to another, directly or through others.
bool reaches(const FolderEdges& edges, const std::string& from, const std::string& to, std::set<std::string>& seen)
{
    if (from == to)
        return true;
    if (const auto out = edges.find(from); seen.insert(from).second && out != edges.end())
        for (const std::string& next : out->second)
            if (reaches(edges, next, to, seen))
                return true;
    return false;
}

// The unit a circle is told in: a subsystem's core ("books", with its
// rowtable), or one of its ui/ folders ("books/ui", "books/rowtable/ui").
std::string folderOf(const std::string& relative)
{
    if (const size_t ui = relative.find("/ui/"); ui != std::string::npos)
        return relative.substr(0, ui + 3);
    return relative.substr(0, relative.find('/'));
}

// Every problem found, one a line.
std::string layeringProblems(const fs::path& root)
{
    std::string problems;
    FolderEdges folderEdges;
    for (const IncludeLine& include : includesOf(root)) {
        const std::string where = include.file + ":" + std::to_string(include.line) + " includes " + include.target;
        if (include.angled) {
            if (inCore(include.file) && isWidgetHeader(include.target))
                problems += where + ": the core uses no widget\n";
            continue;
        }
        const std::string target = projectFile(root, include);
        if (target.empty())
            continue;
        if (!includeAllowed(include.file, target))
            problems += where + ": it points up\n";
        if (folderOf(target) != folderOf(include.file))
            folderEdges[folderOf(include.file)].insert(folderOf(target));
    }
    // Each pair of folders of a circle is told once, the first by name before the other.
    for (const auto& [folder, targets] : folderEdges)
        for (const std::string& target : targets)
            if (std::set<std::string> seen; folder < target && reaches(folderEdges, target, folder, seen))
                problems += "folders include each other: " + folder + " and " + target + "\n";
    return problems;
}

// A throwaway source tree, for testing the check itself.
class SourceTree {
public:
    SourceTree() { fs::remove_all(root); }
    ~SourceTree() { fs::remove_all(root); }
    void file(const std::string& relative, const std::string& text) const
    {
        fs::create_directories((root / relative).parent_path());
        std::ofstream(root / relative) << text;
    }
    const fs::path root = fs::temp_directory_path() / ("layering-" + std::to_string(::getpid()));
};

} // namespace

TEST(Layering, TheSourcesIncludeOnlyDownward)
{
    const fs::path root(QUILLMARK_SOURCE_DIR);
    ASSERT_TRUE(fs::exists(root / "app"));
    ASSERT_TRUE(fs::exists(fs::path(QUILLMARK_QT_WIDGETS_HEADERS) / "QWidget"));
    EXPECT_EQ(layeringProblems(root), "");
}

// The check itself: each kind of problem is named, and a clean tree has none.
TEST(Layering, EachKindOfProblemIsNamed)
{
    SourceTree tree;
    tree.file("platform/Text.h", "#pragma once\n#include <QString>\n");
    tree.file("books/rowtable/ui/ListboxView.h", "#include <QTableView>\n#include \"platform/Text.h\"\n");
    tree.file("books/Names.h", "#include \"platform/Text.h\"\n");
    tree.file("engine/RowLayouts.h", "#include \"books/Names.h\"\n");
    tree.file("engine/ui/AccountWindow.h", "#include \"engine/RowLayouts.h\"\n#include \"../../widgets/Canvas.h\"\n");
    tree.file("widgets/Canvas.h", "#include <QWidget>\n");
    tree.file("mainwindow/SummaryWindow.h", "#include \"engine/ui/AccountWindow.h\"\n");
    tree.file("app/Windows.cpp", "#include \"mainwindow/SummaryWindow.h\"\n");
    tree.file("cli/CommandLine.cpp", "#include \"engine/RowLayouts.h\"\n");
    ASSERT_EQ(layeringProblems(tree.root), "");

    tree.file("books/LedgerNames.cpp", "#include \"engine/RowLayouts.h\"\n");
    tree.file("engine/Balance.cpp", "#include \"books/rowtable/ui/ListboxView.h\"\n#include <QtWidgets/QDialog>\n");
    tree.file("platform/Picture.cpp", "#include <QPrinter>\n");
    tree.file("engine/ui/Near.cpp", "#include \"../../mainwindow/SummaryWindow.h\"\n");
    tree.file("mainwindow/Commands.cpp", "#include \"cli/CommandLine.cpp\"\n");
    tree.file("reports/ui/ledgerWindow.h", "#include \"engine/ui/AccountWindow.h\"\n");
    tree.file("engine/ui/AccountWindow.cpp", "#include \"reports/ui/ledgerWindow.h\"\n");
    EXPECT_EQ(layeringProblems(tree.root),
              "books/LedgerNames.cpp:1 includes engine/RowLayouts.h: it points up\n"
              "engine/Balance.cpp:1 includes books/rowtable/ui/ListboxView.h: it points up\n"
              "engine/Balance.cpp:2 includes QtWidgets/QDialog: the core uses no widget\n"
              "engine/ui/Near.cpp:1 includes ../../mainwindow/SummaryWindow.h: it points up\n"
              "mainwindow/Commands.cpp:1 includes cli/CommandLine.cpp: it points up\n"
              "platform/Picture.cpp:1 includes QPrinter: the core uses no widget\n"
              "folders include each other: books and engine\n"
              "folders include each other: engine/ui and mainwindow\n"
              "folders include each other: engine/ui and reports/ui\n");
}
