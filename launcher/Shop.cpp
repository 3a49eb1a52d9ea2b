// SPDX-License-Identifier: MIT
#include "launcher/Shop.h"

#include "launcher/Clock.h"
#include "launcher/DataFolder.h"
#include "launcher/Places.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "launcher/Speech.h"

#include <system_error>

#include <fcntl.h>

namespace Shop {
namespace {
constexpr const char* translation = "FormVendelTr_Us.qm";

/// Writes the file \a name, empty or a copy of \a source.
void writeNew(int folder, const std::string& name, const Descriptor& source)
{
    SafeFile::Temporary part(folder, '.' + name + ".neuf");
    if (source) {
        part.copyFrom(source.get());
    }
    part.become(name.c_str(), SafeFile::Existing::Keep);
}

/// Refuses what the till would wait for without end, such as a FIFO. It looks at pictures itself.
void requireReadable(const DataFolder& folder, const std::string& name)
{
    SafeFile::Status found{};
    if (fstatat(folder.get(), name.c_str(), &found, 0) == 0 && !S_ISREG(found.st_mode)
        && !S_ISDIR(found.st_mode)) {
        throw folder.unusable({Sentences::fileIsNone, {name}});
    }
}

void provide(const DataFolder& folder, const std::string& name, const std::string& source)
{
    if (SafeFile::exists(folder.get(), name.c_str())) {
        if (source.empty()) {
            requireReadable(folder, name);
        }
        return;
    }
    Descriptor original;
    if (!source.empty()) {
        original = Descriptor(open((source + '/' + name).c_str(), O_RDONLY | O_CLOEXEC));
        if (!original) {
            return;
        }
    }
    try {
        writeNew(folder.get(), name, original);
    } catch (const std::system_error&) {
        throw folder.unusable({Sentences::fileNotWritten, {name}});
    }
}

bool isLink(int folder, const char* name)
{
    SafeFile::Status found{};
    return fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(found.st_mode);
}

/// Moves the shop's own translation out of the way, unless its new name is taken.
void moveOwnAside(int folder)
{
    const Moment moment = now();
    const std::string aside = std::string(translation) + '.' + moment.day + '-' + moment.time;
    try {
        SafeFile::moveNew(folder, translation, folder, aside.c_str());
    } catch (const std::system_error&) {
        return;
    }
}
} // namespace

void provideFiles(const DataFolder& folder, const Places& places)
{
    provide(folder, "EnteteFormulaire.dat", {});
    provide(folder, "PiedFormulaire.dat", {});
    provide(folder, "Vendel.png", places.shared);
    provide(folder, "AproposdeImage.png", places.shared);
}

// The till reads its translation from its working directory. A link there is our English; a file is
// the shop's own, which is moved away only when a language is asked for.
void applyLanguage(const DataFolder& folder, const Places& places, const Speech& speech,
    std::optional<Language> asked)
{
    const int here = folder.get();
    if (SafeFile::exists(here, translation) && !isLink(here, translation)) {
        if (!asked) {
            return;
        }
        moveOwnAside(here);
    }
    if (isLink(here, translation)) {
        SafeFile::remove(here, translation);
    }
    if (speech.language() == Language::English) {
        const std::string installed = places.shared + '/' + translation;
        if (access(installed.c_str(), R_OK) != 0
            || symlinkat(installed.c_str(), here, translation) != 0) {
            speech.warn(Sentences::noTranslation);
        }
    }
    if (asked) {
        const char* remembered = *asked == Language::English ? "en\n" : "fr\n";
        try {
            SafeFile::write(here, "langue", remembered, SafeFile::Existing::Replace);
        } catch (const std::system_error&) {
            throw folder.unusable({Sentences::fileNotWritten, {"langue"}});
        }
    }
}
} // namespace Shop
