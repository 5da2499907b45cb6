#include "cli/commands.h"
#include "cli/console.h"
#include "cli/text_table.h"
#include "core/display_text.h"
#include "core/line_file.h"
#include "core/platform.h"
#include "feeds/library_import.h"
#include "store/sqlite_engine.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct FeedsOptions {
    std::string Library;
    std::string Name;
    std::string File;

    std::string Path() const {
        return Library.empty() ? JoinPath(ThePlatform().ProgramFolder(), kLibraryFile) : Library;
    }
};

std::string ErrorText(const RuntimeError& error) {
    return "error " + std::to_string(error.Number) + ", " + error.Description;
}

// Runs a task on the library, which is open for as long as it takes.
ExitStatus WithLibrary(const FeedsOptions& options, LibraryUse use,
                       const std::function<ExitStatus(FeedLibrary&)>& task) {
    static SqliteEngine engine;
    SetLibraryEngine(engine);
    try {
        FeedLibrary library(use, options.Path());
        return task(library);
    } catch (const RuntimeError& error) {
        WriteMessage(options.Path() + ": " + ErrorText(error) + ".");
        return kSomeFailed;
    }
}

// As it is shown on a line: a control character would do something to the terminal.
std::string Shown(std::string_view bytes) {
    std::string text = DisplayText(bytes);
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return text;
}
std::string Shown(const Recordset& row, std::string_view column) {
    return Shown(ShownText(row.Value(column)));
}

ExitStatus List(FeedLibrary& library) {
    TextTable lines("lll");
    for (Recordset& row = library.Table(); !row.AtEnd(); row.MoveNext()) {
        lines.AddRow({Shown(row, kFeedNameColumn), Shown(row, kCategoryColumn),
                      IsDefaultFeed(row) ? "default" : "user"});
    }
    WriteOutput(lines.Text());
    return kAllWell;
}

// The feed of exactly that name, or else the first one that the list shows so: its name may hold
// bytes of another code page, or signs that can't be typed.
bool FindTyped(FeedLibrary& library, const std::string& name) {
    Recordset& row = library.Table();
    if (row.AtEnd()) return false;
    if (library.Find(name)) return true;
    const std::string shown = Shown(name);
    for (row.MoveFirst(); !row.AtEnd(); row.MoveNext()) {
        if (Shown(row, kFeedNameColumn) == shown) return true;
    }
    return false;
}

// The columns of the feed's kind, with a dash for a Null.
ExitStatus ShowFeed(FeedLibrary& library, const std::string& name) {
    Recordset& row = library.Table();
    if (!FindTyped(library, name)) {
        WriteMessage("the library has no feed \"" + Shown(name) + "\". See: tav feeds list");
        return kSomeFailed;
    }
    const bool calf = IsCalfCategory(ShownText(row.Value(kCategoryColumn)));
    TextTable lines("ll");
    for (const FeedColumn& column : FeedColumns()) {
        if (!column.BelongsTo(calf)) continue;
        const bool missing = IsNull(row.Value(column.Name));
        lines.AddRow({std::string(column.Name), missing ? "-" : Shown(row, column.Name)});
    }
    WriteOutput(lines.Text());
    return kAllWell;
}

bool IsSameFile(const std::string& first, const std::string& second) {
    std::error_code error;
    return std::filesystem::equivalent(first, second, error);
}

bool WriteFile(const std::string& path, const std::string& text) {
    const FileHandle file(std::fopen(path.c_str(), "wb"));
    return file && std::fwrite(text.data(), 1, text.size(), file.get()) == text.size() &&
           std::fflush(file.get()) == 0;
}

ExitStatus ExportFeeds(FeedLibrary& library, const FeedsOptions& options) {
    const std::string text = LibraryCsv(library.Table());
    if (IsSameFile(options.File, options.Path())) {
        WriteMessage(options.File + " is the feed library itself and is left as it is.");
        return kSomeFailed;
    }
    if (WriteFile(options.File, text)) return kAllWell;
    WriteMessage(options.File + " could not be written.");
    return kSomeFailed;
}

void Report(const FeedsOptions& options, const ImportResult& result, const ColumnList& columns) {
    for (const LibraryRow& row : result.PassedOver) {
        WriteMessage(options.File + ": line " + std::to_string(row.Line) + ": \"" +
                     Shown(NameOf(row, columns)) + "\" is a default feed and is left as it is.");
    }
    WriteOutput(std::to_string(result.Added) + " added, " + std::to_string(result.Replaced) +
                " replaced, " + std::to_string(result.Unchanged) + " unchanged, " +
                std::to_string(result.PassedOver.size()) + " default feeds left as they are\n");
}

std::string FaultText(const CsvFault& fault) {
    std::string text;
    if (fault.Line > 0) text += "line " + std::to_string(fault.Line);
    if (fault.Column > 0) text += ", column " + std::to_string(fault.Column);
    return text + (text.empty() ? "" : ": ") + Shown(fault.what()) + ". Nothing was imported.";
}

ExitStatus ImportFile(const FeedsOptions& options) {
    LibraryRows rows;
    try {
        rows = ReadLibraryCsv(ReadCsvFile(options.File));
    } catch (const RuntimeError& error) {
        WriteMessage(options.File + ": " + ErrorText(error) + ". Nothing was imported.");
        return kSomeFailed;
    } catch (const CsvFault& fault) {
        WriteMessage(options.File + ": " + FaultText(fault));
        return kSomeFailed;
    }
    return WithLibrary(options, LibraryUse::ReadWrite, [&](FeedLibrary& library) {
        try {
            Report(options, ImportFeeds(library, rows), rows.Columns);
            return kAllWell;
        } catch (const CsvFault& fault) {
            WriteMessage(options.File + ": " + FaultText(fault));
            return kSomeFailed;
        }
    });
}

}  // namespace

void AddFeedsCommand(CLI::App& app, SetStatus finish) {
    const auto options = std::make_shared<FeedsOptions>();
    auto* feeds = app.add_subcommand("feeds", "List, show, export and import the feed library");
    feeds->require_subcommand(1);
    feeds->footer("Example: tav feeds show \"Calf Starter\"");
    const auto add = [&](const char* name, const char* what, const char* example) {
        auto* command = feeds->add_subcommand(name, what);
        command->add_option("--library", options->Library,
                            "The library, if not the one beside the program");
        command->footer(std::string("Example: ") + example);
        return command;
    };

    add("list", "The feeds, their categories, and whose they are", "tav feeds list")->callback([=] {
        finish(WithLibrary(*options, LibraryUse::ReadOnly, List));
    });

    auto* show = add("show", "The values of a feed", "tav feeds show \"Calf Starter\"");
    show->add_option("NAME", options->Name, "The name of the feed")->required();
    show->callback([=] {
        finish(WithLibrary(*options, LibraryUse::ReadOnly,
                           [&](FeedLibrary& library) { return ShowFeed(library, options->Name); }));
    });

    auto* write = add("export", "Write all feeds to a CSV file, for a spreadsheet",
                      "tav feeds export feeds.csv");
    write->add_option("OUT.csv", options->File, "The file to write; it is replaced")->required();
    write->callback([=] {
        finish(WithLibrary(*options, LibraryUse::ReadOnly,
                           [&](FeedLibrary& library) { return ExportFeeds(library, *options); }));
    });

    auto* read =
        add("import", "Add or replace users' feeds from a CSV file", "tav feeds import feeds.csv");
    read->add_option("IN.csv", options->File,
                     "The file, with the library's own column names in its first line")
        ->required();
    read->callback([=] { finish(ImportFile(*options)); });
}

}  // namespace tav
