// SPDX-License-Identifier: MIT
#include "desktop/settings/page_folder.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <system_error>

#include "desktop/settings/page_limits.h"
#include "desktop/settings/page_reader.h"
#include "foundation/folder_entries.h"
#include "model/utf8.h"

namespace desktop::settings {
namespace {

constexpr std::string_view extension = ".plist";

std::string lowerCase(std::string text) {
  for (char& letter : text)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  return text;
}

// Those that it writes.
std::set<std::string> domainsOf(const Page& page) {
  std::set<std::string> domains;
  for (const Group& group : page.groups)
    for (const Row& row : group.rows)
      if (row.kind > RowKind::value) domains.insert(row.place.domain);
  return domains;
}

// Which page has which name and which preference files.
class Claims {
 public:
  // Why the page cannot have what it claims; nothing where it has it from now on.
  std::optional<std::string> claim(const Page& page) {
    const auto domains = domainsOf(page);
    if (const auto taken = _names.find(lowerCase(page.name)); taken != _names.end())
      return "its name is that of \"" + taken->second + "\"";
    for (const std::string& domain : domains)
      if (const auto taken = _domains.find(domain); taken != _domains.end())
        return "\"" + taken->second + "\" keeps its settings in the same file, " + domain;
    _names.emplace(lowerCase(page.name), page.name);
    for (const std::string& domain : domains) _domains.emplace(domain, page.name);
    return std::nullopt;
  }

 private:
  std::map<std::string, std::string> _names;  // without capitals, of the page named so
  std::map<std::string, std::string> _domains;
};

// The files' names, without their extension.
model::Result<std::vector<std::string>> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  if (!std::filesystem::exists(folder, error)) return names;
  const auto entries = foundation::readFolder(folder);
  if (!entries) return entries.error();
  for (const auto& [name, kind, inode, isLink] : *entries)
    if (kind == foundation::FolderEntryKind::file && name.ends_with(extension))
      names.push_back(name.substr(0, name.size() - extension.size()));
  return names;
}

Page refusedPage(const std::string& name, const std::string& why) {
  return explainedPage(model::replacingInvalidUtf8(name),
                       "This page cannot be shown: " + why + ".");
}

Page claimedPage(const std::string& folder, const std::string& name, Claims& claims) {
  const auto page = readPage(foundation::pathInFolder(folder, name) + std::string(extension));
  if (!page) return refusedPage(name, page.error().reason);
  const auto refusal = claims.claim(*page);
  return refusal ? refusedPage(name, *refusal) : *page;
}

}  // namespace

model::Result<std::vector<Page>> readPages(const std::string& folder) {
  const auto names = namesIn(folder);
  if (!names) return names.error();
  if (names->size() > pageLimits.pages)
    return model::Error{"more than " + std::to_string(pageLimits.pages) + " pages"};
  Claims claims;
  std::vector<Page> pages;
  for (const std::string& name : *names) pages.push_back(claimedPage(folder, name, claims));
  return pages;
}

}  // namespace desktop::settings
