#include "desktop/own_folder_copy.h"

#include "core/program_settings.h"
#include "core/simulation_file.h"
#include "desktop/text.h"
#include "feeds/feed_library.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <QTemporaryFile>
#include <QVersionNumber>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace tav {
namespace {

constexpr std::string_view kProgram = "tav-dairy";
constexpr std::string_view kVersion = "Version.txt";

enum class Owner { Program, User };

struct Entry {
    std::string_view Name;  // a file, or a folder with all that is in it
    Owner Of;
};

// In the order in which they are copied: the version last, so that a broken-off update is repeated.
constexpr auto kEntries = std::to_array<Entry>({
    {"README.txt", Owner::Program},
    {"LICENSE", Owner::Program},
    {"TAV Dairy Cattle Program Help.HLP", Owner::Program},
    {"share", Owner::Program},
    {"tav", Owner::Program},
    {"Simulation Files", Owner::User},
    {kLibraryFile, Owner::User},
    {kDefaultSimulationFile, Owner::User},
    {kProgramSettingsFile, Owner::User},
    {kProgram, Owner::Program},
    {kVersion, Owner::Program},
});

QString In(const QString& folder, std::string_view name) {
    return QDir(folder).filePath(PathToQt(name));
}

[[noreturn]] void Fail(const QString& what, const QString& path, const QString& reason) {
    const QString text = what + ":\n" + QDir::toNativeSeparators(path) + "\n" + reason;
    throw CopyFault(text.toStdString());
}

void MakeFolder(const QString& folder) {
    std::error_code error;
    std::filesystem::create_directories(PathFromQt(folder), error);
    if (error) {
        Fail(QStringLiteral("This folder could not be made"), folder,
             ToQt(error.message()) + QLatin1Char('.'));
    }
}

// A full disk is not an error that Qt has words for.
QString WhyNotWritten(const QSaveFile& target, qint64 size) {
    const QStorageInfo disk(QFileInfo(target.fileName()).path());
    if (disk.isValid() && disk.bytesAvailable() < size) {
        return QStringLiteral("There is not enough room on the disk.");
    }
    return target.errorString();
}

// The whole file or none of it: what stood there before stays until the new one is complete.
void CopyFile(const QString& from, const QString& to) {
    constexpr qint64 kBlock = 1 << 20;
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly)) {
        Fail(QStringLiteral("This file could not be read"), from, source.errorString());
    }
    QSaveFile target(to);
    bool good = target.open(QIODevice::WriteOnly);
    while (good && !source.atEnd()) {
        const QByteArray block = source.read(kBlock);
        if (source.error() != QFileDevice::NoError) {
            Fail(QStringLiteral("This file could not be read"), from, source.errorString());
        }
        good = target.write(block) == block.size();
    }
    // The copy of a read-only file is the user's to change.
    good = good && target.setPermissions(source.permissions() | QFile::ReadOwner |
                                         QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    if (!good || !target.commit()) {
        Fail(QStringLiteral("This file could not be written"), to,
             WhyNotWritten(target, source.size()));
    }
}

void CopyEntry(const QString& from, const QString& to, Owner owner) {
    const QFileInfo source(from);
    if (source.isDir()) {
        MakeFolder(to);
        for (const QString& name :
             QDir(from).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
            CopyEntry(QDir(from).filePath(name), QDir(to).filePath(name), owner);
        }
        return;
    }
    // Another user's settings may be that user's alone.
    const bool leave = owner == Owner::User && (QFileInfo::exists(to) || !source.isReadable());
    if (source.exists() && !leave) CopyFile(from, to);
}

QVersionNumber VersionOf(const QString& folder) {
    QFile file(In(folder, kVersion));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QVersionNumber::fromString(QString::fromLatin1(file.readLine(80)).trimmed());
}

}  // namespace

bool CanWriteIn(const QString& folder) {
    QTemporaryFile file(QDir(folder).filePath(QStringLiteral("tav-XXXXXX.tmp")));
    return file.open() && file.write("x") == 1 && file.flush();
}

QString ProgramIn(const QString& folder) { return In(folder, kProgram); }

bool HoldsProgram(const QString& folder) {
    const QFileInfo program(ProgramIn(folder));
    return program.isFile() && program.isExecutable();
}

bool IsLater(const QString& folder, const QString& than) {
    return VersionOf(folder) > VersionOf(than);
}

void CopyProgram(const QString& from, const QString& to) {
    MakeFolder(to);
    if (!CanWriteIn(to)) {
        Fail(QStringLiteral("Nothing can be written to this folder"), to,
             QStringLiteral("It may be protected, or the disk may be full."));
    }
    for (const Entry& entry : kEntries) {
        CopyEntry(In(from, entry.Name), In(to, entry.Name), entry.Of);
    }
}

}  // namespace tav
