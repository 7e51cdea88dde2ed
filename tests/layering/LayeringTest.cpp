// Includes point down: app -> main window -> windows -> widgets -> core, and
// inside the core platform -> books -> engine -> the open ledger. This test reads
// the #include lines of every source file and names each one that points up,
// and each circle of folders that include each other.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace fs = std::filesystem;

namespace {

enum class Layer { Core, Widgets, Windows, App, CommandLine };

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

// relative: a path under src/ with "/" separators.
Layer layerOf(const std::string& relative)
{
    if (startsWith(relative, "app/"))
        return Layer::App;
    if (startsWith(relative, "cli/"))
        return Layer::CommandLine;
    if (startsWith(relative, "widgets/") || startsWith(relative, "books/rowtable/ui/")
        || startsWith(relative, "platform/ui/"))
        return Layer::Widgets;
    if (startsWith(relative, "mainwindow/") || relative.find("/ui/") != std::string::npos)
        return Layer::Windows;
    return Layer::Core;
}

// The order inside the core: a folder may include its own rank and those below.
int coreRank(const std::string& relative)
{
    if (startsWith(relative, "platform/"))
        return 0;
    if (startsWith(relative, "books/"))
        return 1;
    if (startsWith(relative, "engine/"))
        return 2;
    return 3; // the open ledger, and the core halves of reports, charts, exchange, update
}

bool includeAllowed(const std::string& from, const std::string& to)
{
    const Layer source = layerOf(from);
    const Layer target = layerOf(to);
    switch (source) {
    case Layer::Core:
        return target == Layer::Core && coreRank(to) <= coreRank(from);
    case Layer::CommandLine:
        return target == Layer::Core || target == Layer::CommandLine;
    case Layer::Widgets:
        return target == Layer::Core || target == Layer::Widgets;
    case Layer::Windows:
        // A dialog never reaches up into the main window.
        if (startsWith(to, "mainwindow/") && !startsWith(from, "mainwindow/"))
            return false;
        return target != Layer::App && target != Layer::CommandLine;
    case Layer::App:
        return target != Layer::CommandLine;
    }
    return false;
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
bool isWidgetHeader(const std::string& target, const std::vector<fs::path>& widgetHeaderFolders)
{
    const std::string module = target.substr(0, target.find('/'));
    if (module == "QtWidgets" || module == "QtPrintSupport")
        return true;
    return std::any_of(widgetHeaderFolders.begin(), widgetHeaderFolders.end(),
                       [&](const fs::path& folder) { return fs::exists(folder / target); });
}

// A project include, as a path relative to the root, or "" for anything else.
std::string projectFile(const fs::path& root, const IncludeLine& include)
{
    if (include.angled)
        return {};
    if (!startsWith(include.target, ".") && fs::exists(root / include.target))
        return include.target;
    const fs::path beside = (root / include.file).parent_path() / include.target;
    if (fs::exists(beside))
        return beside.lexically_normal().lexically_relative(root).generic_string();
    return {};
}

// Folders whose files include each other's headers, directly or through others.
std::vector<std::string> folderCircles(const std::map<std::string, std::set<std::string>>& edges)
{
    std::vector<std::string> circles;
    std::map<std::string, int> state; // 1 on the path being walked, 2 done
    std::vector<std::string> path;
    std::function<void(const std::string&)> walk = [&](const std::string& folder) {
        state[folder] = 1;
        path.push_back(folder);
        if (const auto out = edges.find(folder); out != edges.end()) {
            for (const std::string& next : out->second) {
                if (state[next] == 1) {
                    // Told from its first folder by name, so a circle reads the same
                    // wherever the walk found it.
                    std::vector<std::string> members(std::find(path.begin(), path.end(), next), path.end());
                    std::rotate(members.begin(), std::min_element(members.begin(), members.end()), members.end());
                    std::string circle;
                    for (const std::string& member : members)
                        circle += member + " -> ";
                    circles.push_back(circle + members.front());
                } else if (state[next] == 0) {
                    walk(next);
                }
            }
        }
        path.pop_back();
        state[folder] = 2;
    };
    for (const auto& [folder, targets] : edges) {
        if (state[folder] == 0)
            walk(folder);
    }
    return circles;
}

// The unit a circle is told in: a subsystem's core ("books", with its
// rowtable), or one of its ui/ folders ("books/ui", "books/rowtable/ui").
std::string folderOf(const std::string& relative)
{
    if (const size_t ui = relative.find("/ui/"); ui != std::string::npos)
        return relative.substr(0, ui + 3);
    return relative.substr(0, relative.find('/'));
}

std::vector<std::string> layeringProblems(const fs::path& root, const std::vector<fs::path>& widgetHeaderFolders)
{
    std::vector<std::string> problems;
    std::map<std::string, std::set<std::string>> folderEdges;
    for (const IncludeLine& include : includesOf(root)) {
        const std::string where = include.file + ":" + std::to_string(include.line) + " includes " + include.target;
        if (include.angled) {
            if (layerOf(include.file) == Layer::Core && isWidgetHeader(include.target, widgetHeaderFolders))
                problems.push_back(where + ": the core uses no widget");
            continue;
        }
        const std::string target = projectFile(root, include);
        if (target.empty())
            continue;
        if (!includeAllowed(include.file, target))
            problems.push_back(where + ": it points up");
        if (folderOf(target) != folderOf(include.file))
            folderEdges[folderOf(include.file)].insert(folderOf(target));
    }
    for (const std::string& circle : folderCircles(folderEdges))
        problems.push_back("folders include each other: " + circle);
    return problems;
}

std::vector<fs::path> qtWidgetHeaderFolders()
{
    return {fs::path(QUILLMARK_QT_WIDGETS_HEADERS), fs::path(QUILLMARK_QT_PRINTSUPPORT_HEADERS)};
}

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

// A throwaway source tree.
class SourceTree {
public:
    SourceTree()
        : root_(fs::temp_directory_path() / ("layering-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed())
                                             + "-" + std::to_string(reinterpret_cast<std::uintptr_t>(this))))
    {
        fs::create_directories(root_);
    }
    ~SourceTree() { fs::remove_all(root_); }

    void file(const std::string& relative, const std::string& text) const
    {
        fs::create_directories((root_ / relative).parent_path());
        std::ofstream(root_ / relative) << text;
    }
    const fs::path& root() const { return root_; }

private:
    fs::path root_;
};

} // namespace

TEST(Layering, TheSourcesIncludeOnlyDownward)
{
    const fs::path root(QUILLMARK_SOURCE_DIR);
    ASSERT_TRUE(fs::exists(root / "app"));
    ASSERT_TRUE(fs::exists(fs::path(QUILLMARK_QT_WIDGETS_HEADERS) / "QWidget"));
    const std::vector<std::string> problems = layeringProblems(root, qtWidgetHeaderFolders());
    EXPECT_TRUE(problems.empty()) << joined(problems);
}

TEST(Layering, EachKindOfUpwardIncludeIsNamed)
{
    SourceTree tree;
    tree.file("platform/Text.h", "#pragma once\n#include <QString>\n");
    tree.file("books/rowtable/Listbox.h", "#include \"platform/Text.h\"\n");
    tree.file("books/rowtable/ui/ListboxView.h", "#include <QTableView>\n#include \"books/rowtable/Listbox.h\"\n");
    tree.file("engine/RowLayouts.h", "#include \"books/rowtable/Listbox.h\"\n");
    tree.file("ledger/SummaryBooks.h", "#include \"engine/RowLayouts.h\"\n");
    tree.file("widgets/Canvas.h", "#include <QWidget>\n");
    tree.file("engine/ui/AccountWindow.h", "#include \"ledger/SummaryBooks.h\"\n#include \"widgets/Canvas.h\"\n");
    tree.file("mainwindow/SummaryWindow.h", "#include \"engine/ui/AccountWindow.h\"\n");
    tree.file("app/Windows.h", "#pragma once\n");
    tree.file("app/Windows.cpp", "#include \"app/Windows.h\"\n#include \"mainwindow/SummaryWindow.h\"\n");
    tree.file("cli/CommandLine.cpp", "#include \"ledger/SummaryBooks.h\"\n");
    ASSERT_TRUE(layeringProblems(tree.root(), qtWidgetHeaderFolders()).empty())
        << joined(layeringProblems(tree.root(), qtWidgetHeaderFolders()));

    tree.file("books/LedgerNames.cpp", "#include \"engine/RowLayouts.h\"\n");
    tree.file("engine/Balance.cpp", "#include \"ledger/SummaryBooks.h\"\n#include <QLabel>\n#include <QtWidgets/QDialog>\n");
    tree.file("platform/Picture.cpp", "#include <QPrinter>\n");
    tree.file("ledger/Books.cpp", "#include \"widgets/Canvas.h\"\n");
    tree.file("engine/ui/TransactionWindow.cpp", "#include \"mainwindow/SummaryWindow.h\"\n");
    tree.file("widgets/DateControl.cpp", "#include \"app/Windows.h\"\n#include \"engine/ui/AccountWindow.h\"\n");
    tree.file("mainwindow/Commands.cpp", "#include \"app/Windows.h\"\n");
    tree.file("cli/Verbs.cpp", "#include \"widgets/Canvas.h\"\n");
    tree.file("engine/ui/Near.cpp", "#include \"../../app/Windows.h\"\n");
    const std::string problems = joined(layeringProblems(tree.root(), qtWidgetHeaderFolders()));
    for (const char* expected : {"books/LedgerNames.cpp:1 includes engine/RowLayouts.h: it points up",
                                 "engine/Balance.cpp:1 includes ledger/SummaryBooks.h: it points up",
                                 "engine/Balance.cpp:2 includes QLabel: the core uses no widget",
                                 "engine/Balance.cpp:3 includes QtWidgets/QDialog: the core uses no widget",
                                 "platform/Picture.cpp:1 includes QPrinter: the core uses no widget",
                                 "ledger/Books.cpp:1 includes widgets/Canvas.h: it points up",
                                 "engine/ui/TransactionWindow.cpp:1 includes mainwindow/SummaryWindow.h: it points up",
                                 "widgets/DateControl.cpp:1 includes app/Windows.h: it points up",
                                 "widgets/DateControl.cpp:2 includes engine/ui/AccountWindow.h: it points up",
                                 "mainwindow/Commands.cpp:1 includes app/Windows.h: it points up",
                                 "cli/Verbs.cpp:1 includes widgets/Canvas.h: it points up",
                                 "engine/ui/Near.cpp:1 includes ../../app/Windows.h: it points up",
                                 "folders include each other: books -> engine -> books",
                                 "folders include each other: engine -> ledger -> engine"})
        EXPECT_NE(problems.find(expected), std::string::npos) << expected << "\nnot in\n" << problems;
    EXPECT_EQ(problems.find("QString"), std::string::npos) << "QtCore and QtGui are the core's own";
}

TEST(Layering, WindowsThatIncludeEachOtherFormACircle)
{
    SourceTree tree;
    tree.file("books/ui/newBookWindow.cpp", "#include \"engine/ui/AccountWindow.h\"\n");
    tree.file("engine/ui/AccountWindow.h", "#pragma once\n");
    tree.file("engine/ui/AccountWindow.cpp", "#include \"reports/ui/ledgerWindow.h\"\n");
    tree.file("reports/ui/ledgerWindow.h", "#include \"books/ui/newBookWindow.h\"\n");
    tree.file("books/ui/newBookWindow.h", "#pragma once\n");
    const std::vector<std::string> problems = layeringProblems(tree.root(), qtWidgetHeaderFolders());
    ASSERT_EQ(problems.size(), 1u) << joined(problems);
    EXPECT_EQ(problems[0], "folders include each other: books/ui -> engine/ui -> reports/ui -> books/ui");
}
