// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/help_text.h"

namespace lumifact::tool {

namespace {

constexpr std::string_view toolHelp =
    R"(lumifact: everything that photos and videos say about themselves

Usage: lumifact COMMAND [OPTIONS] [FILE...]

Commands:
  report       the full metadata report of each photo or video
  table        the report of one photo as a tree of keys and values
  quick-info   a short summary: path, date, size, orientation or duration, place
  caption      a line a file: pixel size, file type, file size
  size         the title of a selection of files, with their size as a whole
  map-link     the link that opens a file's place in a map service
  properties   the metadata as it was read, as JSON
  parse        reports of metadata given as JSON or as a property list
  browse       open a folder in the photo application, with the extension
  settings     show or change the settings

'lumifact COMMAND --help' tells more about a command.
)";

constexpr std::string_view toolExamples = R"(
Examples:
  lumifact report IMG_0001.HEIC
  lumifact report --recursive ~/Pictures > report.txt
  lumifact report --json *.jpg | jq -r .mapLink
  find . -name '*.mov' -print0 | lumifact caption --files-from - --null

Results go to standard output, messages to standard error as 'lumifact: FILE:
reason'. Exit status: 0 all done, 1 some file failed (the others are still
printed), 2 wrong usage. Behind '--', everything is a file name.
)";

constexpr std::string_view fileOptions = R"(
Files:
  -r, --recursive        read what folders hold, sorted by name; hidden files
                         are skipped and links to folders are not followed
      --files-from LIST  read more file names from LIST, a line each; '-' is
                         standard input
  -0, --null             the names in LIST end in a zero byte (find -print0)
  -j, --jobs N           read N files at a time; the output keeps its order
                         (default: the number of processors, at most 4)
)";

constexpr std::string_view settingsOptions = R"(
Settings:
      --settings FILE    the settings file; a missing one means the defaults
                         (default: the phone's own path below the root)
      --map-type N       where map links lead, in place of the setting mapType:
                         1 the map application, any other number the web
      --map-zoom N       in place of mapZoomLevel: zoom of links for the map
                         application; 0 leaves it out
      --map-view N       in place of mapViewType: 1 standard, 2 satellite,
                         3 transit; any other number leaves it out
)";

constexpr std::string_view generalOptions = R"(
General:
      --locale NAME      language and region of texts, such as de_DE
                         (default: LC_ALL, LC_TIME and the like, LANG; then
                         en_US)
      --time-zone NAME   time zone of dates, such as Europe/Berlin
                         (default: TZ, else the system's)
      --root FOLDER      the folder that stands for the phone's file system:
                         /var/mobile lies below it
                         (default: photohost in XDG_DATA_HOME or ~/.local/share)
  -h, --help             print this help
      --version          print the version
)";

enum class Sections { all, filesAndGeneral, settingsAndGeneral, general };

struct CommandHelp {
  std::string_view command;
  Sections sections;
  std::string_view text;
};

constexpr CommandHelp commandHelps[] = {
    {"report", Sections::all, R"(Usage: lumifact report [OPTIONS] FILE...

Prints the report of each photo and video: the file's path, date and size, then
every property that its metadata holds, worded for reading. An empty line
stands between two files.

Options:
      --json             print one JSON object a line: path (as given), header,
                         text, table (null for a video), coordinates, mapLink

Map links follow the settings mapType, mapZoomLevel and mapViewType. With
--json the texts are those of en_US unless --locale says otherwise, and bytes
of a path that are no UTF-8 become U+FFFD.
)"},
    {"properties", Sections::filesAndGeneral, R"(Usage: lumifact properties [OPTIONS] FILE...

Prints the metadata of each file as it was read, before any wording: one JSON
object a line, with path (as given) and properties, or asset for a video. That
inner object is what 'lumifact parse' reads.

Integers and reals are told apart (72 and 72.0); bytes are {"$data": base64},
dates {"$date": ISO 8601 in UTC}, and reals that JSON lacks {"$real": "nan"}.
A dictionary that could be taken for one of these is {"$dictionary": {...}}.
Bytes of a path that are no UTF-8 become U+FFFD.
)"},
    {"table", Sections::settingsAndGeneral, R"(Usage: lumifact table [OPTIONS] FILE

Prints the report of a photo as the table shows it: rows about the file first,
then a row a key, 'title = value', with what a section holds two columns
further right. Elements of a list stand behind '-'. A video has no table.
)"},
    {"quick-info", Sections::filesAndGeneral, R"(Usage: lumifact quick-info [OPTIONS] FILE...

Prints a short summary of each file: path (with percent-escapes, as in a URL),
date taken, file size, pixel size as displayed, the duration of a video or the
orientation of a photo, and the place where the metadata names one. An empty
line stands between two files.

Options:
      --compact          leave the labels out
)"},
    {"caption", Sections::all, R"(Usage: lumifact caption [OPTIONS] FILE...

Prints the caption that a thumbnail of each file has, a line a file. The line
is empty where the setting shows none.

Options:
      --display N        what to show, in place of the setting
                         thumbnailInfoDisplay: 1 pixel size and type,
                         2 file size and type, 3 pixel size and file size
)"},
    {"size", Sections::filesAndGeneral, R"(Usage: lumifact size [OPTIONS] FILE...

Prints the title of the files as a selection, with the size of all of them:
'12 Items Selected (31.4 MB) '. A file that is named twice counts once; one
that cannot be read counts as an item of 0 bytes and is reported. Where the
size is 0, the title has none.
)"},
    {"map-link", Sections::settingsAndGeneral, R"(Usage: lumifact map-link [OPTIONS] FILE
       lumifact map-link [OPTIONS] --coordinates LAT,LON
       lumifact map-link [OPTIONS] --location LAT LON

Prints the link that opens the place of a photo or video in a map service, or
the one for a given place. A file without a location is an error.

Options:
      --coordinates LAT,LON
                         link to these coordinates, exactly as they are written
      --location LAT LON
                         link to this place, in degrees, north and east
                         positive; --coordinates come first

Example:
  lumifact map-link --map-type 1 --map-zoom 12 --location -33.8568 151.2153
)"},
    {"parse", Sections::general, R"(Usage: lumifact parse image [--plist FILE]
       lumifact parse video [--plist FILE]

Reads JSON from standard input, one properties dictionary (image) or media
asset (video) a line, as 'lumifact properties' prints them, and answers each
with one JSON line: text, table (image only), coordinates. A line that cannot
be read is answered with {"error": reason}; the others go on, and the exit
status is 1 at the end. null is an absent asset.

Options:
      --plist FILE       read one property list (XML or binary) instead

Example:
  echo '{"PixelWidth": 4032, "Orientation": 6}' | lumifact parse image
)"},
    {"browse", Sections::general, R"(Usage: lumifact browse [OPTIONS] [FOLDER]

Opens the folder, or the pictures folder, in the photo application, with the
extension loaded: open a photo and press the info button, or I, for its report.
)"},
    {"settings", Sections::settingsAndGeneral, R"(Usage: lumifact settings
       lumifact settings get KEY
       lumifact settings set KEY VALUE
       lumifact settings set KEY --unset
       lumifact settings reset

Without words, lists the settings in effect, 'key = value'. 'get' prints the
value of one. 'set' writes it to the settings file, with --unset takes it out
of the file, and 'reset' takes out all of them. A flag is true, false, yes, no,
1 or 0; numbers are not checked for their range.

The file is replaced in one step and keeps its format, its mode and what else
it holds; a file that is no property list is left alone. A new one is XML.
While there is no file, mapZoomLevel is 19; in a file without it, it is 0.
)"},
};

std::string sectionsText(Sections sections) {
  std::string text;
  const bool all = sections == Sections::all;
  if (all || sections == Sections::filesAndGeneral) text += fileOptions;
  if (all || sections == Sections::settingsAndGeneral) text += settingsOptions;
  return text += generalOptions;
}

}  // namespace

std::string helpText(std::string_view command) {
  for (const CommandHelp& help : commandHelps) {
    if (help.command == command) return std::string(help.text) + sectionsText(help.sections);
  }
  return std::string(toolHelp) + sectionsText(Sections::all) + std::string(toolExamples);
}

}  // namespace lumifact::tool
