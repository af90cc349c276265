// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/common_options.h"

#include "apps/lumifact/command_line/number_text.h"
#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/command_line/time_zone.h"
#include "foundation/locale_data.h"

namespace lumifact::tool {

namespace {

constexpr unsigned mostJobs = 256;

std::optional<model::Error> readJobs(const Given& given, unsigned& into) {
  into = numberFromText<unsigned>(given.values[0]).value_or(0);
  if (into >= 1 && into <= mostJobs) return std::nullopt;
  return notTaken(given, "a number from 1 to " + std::to_string(mostJobs), given.values[0]);
}

std::optional<model::Error> readTimeZone(const Given& given, std::string& into) {
  into = given.values[0];
  if (timeZoneExists(into)) return std::nullopt;
  return model::Error{"unknown time zone \"" + into + "\""};
}

std::optional<model::Error> readLocale(const Given& given, std::string& into) {
  into = given.values[0];
  if (foundation::localeExists(into)) return std::nullopt;
  return model::Error{"unknown locale \"" + into + "\""};
}

}  // namespace

namespace option {

constinit const Option recursive{
    .section = Section::files,
    .letter = 'r',
    .name = "recursive",
    .help =
        "read what folders hold, sorted by name; hidden files are skipped and links to folders "
        "are not followed",
    .store = flag<&Options::isRecursive>};

constinit const Option filesFrom{
    .section = Section::files,
    .name = "files-from",
    .values = "LIST",
    .help = "read more file names from LIST, a line each; '-' is standard input",
    .store = value<&Options::filesFrom>};

constinit const Option null{.section = Section::files,
                            .letter = '0',
                            .name = "null",
                            .help = "the names in LIST end in a zero byte (find -print0)",
                            .store = flag<&Options::listsEndInZero>};

constinit const Option jobs{.section = Section::files,
                            .letter = 'j',
                            .name = "jobs",
                            .values = "N",
                            .help =
                                "read N files at a time; the output keeps its order\n"
                                "(default: the number of processors, at most 4)",
                            .store = value<&Options::jobs, readJobs>};

constinit const Option settings{.section = Section::settings,
                                .name = "settings",
                                .values = "FILE",
                                .help =
                                    "the settings file; a missing one means the defaults\n"
                                    "(default: the phone's own path below the root)",
                                .store = value<&Options::settingsFile>};

constinit const Option mapType{
    .section = Section::settings,
    .name = "map-type",
    .values = "N",
    .help =
        "where map links lead, in place of the setting mapType: 1 the map application, any "
        "other number the web",
    .store = value<&Options::mapType>};

constinit const Option mapZoom{
    .section = Section::settings,
    .name = "map-zoom",
    .values = "N",
    .help = "in place of mapZoomLevel: zoom of links for the map application; 0 leaves it out",
    .store = value<&Options::mapZoomLevel>};

constinit const Option mapView{
    .section = Section::settings,
    .name = "map-view",
    .values = "N",
    .help =
        "view of links, in place of mapViewType: 1 standard, 2 satellite, 3 transit; any "
        "other number leaves it out",
    .store = value<&Options::mapViewType>};

constinit const Option locale{.section = Section::general,
                              .name = "locale",
                              .values = "NAME",
                              .help =
                                  "language and region of texts, such as de_DE\n"
                                  "(default: LC_ALL, LC_TIME and the like, LANG; then en_US)",
                              .store = value<&Options::locale, readLocale>};

constinit const Option timeZone{.section = Section::general,
                                .name = "time-zone",
                                .values = "NAME",
                                .help =
                                    "time zone of dates, such as Europe/Berlin\n"
                                    "(default: TZ, else the system's)",
                                .store = value<&Options::timeZone, readTimeZone>};

constinit const Option root{
    .section = Section::general,
    .name = "root",
    .values = "FOLDER",
    .help =
        "the folder that stands for the phone's file system: /var/mobile lies below it\n"
        "(default: photohost in XDG_DATA_HOME or ~/.local/share)",
    .store = value<&Options::root>};

constinit const Option help{.section = Section::general,
                            .letter = 'h',
                            .name = "help",
                            .help = "print this help",
                            .store = flag<&Options::wantsHelp>};

constinit const Option version{.section = Section::general,
                               .name = "version",
                               .help = "print the version",
                               .store = flag<&Options::wantsVersion>};

}  // namespace option

}  // namespace lumifact::tool
