// SPDX-License-Identifier: MIT
//
// Paths of the phone's file system lead below the device root, and property lists are read by a
// reader of our own: Foundation's knows no binary ones, crashes on deep nesting, hangs on large
// files and prints on standard error. Names that are no UTF-8 have no text, so their files are
// looked for by what is shown of them.
#include <sys/stat.h>

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "desktop/faces/foundation/corrections.h"
#include "desktop/faces/foundation/foundation_options.h"
#include "desktop/faces/foundation/replacement.h"
#include "desktop/platform.h"
#include "foundation/property_lists/property_list.h"
#include "foundation/shown_path.h"

namespace desktop::faces {
namespace {

// Where a path lies on disk; nil stays nil.
std::string pathOnDisk(id path) {
  return currentOptions().root.onDisk(NSString(path).utf8());
}
id onDisk(id path) {
  return path ? NSString::make(pathOnDisk(path)).get() : nullptr;
}

Stock<BOOL(id, SEL, id)> stockFileExists;
BOOL NSFileManager_fileExists(id self, SEL command, id path) {
  return stockFileExists(self, command, onDisk(path)) ||
         (path && foundation::fileOfShownPath(pathOnDisk(path)).has_value());
}

Stock<BOOL(id, SEL, id, BOOL*)> stockFileExistsIsDirectory;
BOOL NSFileManager_fileExistsIsDirectory(id self, SEL command, id path, BOOL* isDirectory) {
  return stockFileExistsIsDirectory(self, command, onDisk(path), isDirectory);
}

// The attributes that are asked for of a photo; nil where there is no such file.
id attributesOfShownPath(id path) {
  const auto file = path ? foundation::fileOfShownPath(pathOnDisk(path)) : std::nullopt;
  struct stat status {};
  if (!file || ::lstat(file->c_str(), &status) != 0) return nullptr;
  const double modified = static_cast<double>(status.st_mtim.tv_sec) +
                          static_cast<double>(status.st_mtim.tv_nsec) / 1e9;
  auto attributes = makeNew<NSMutableDictionary>();
  attributes->set(NSNumber::withLongLong(status.st_size), NSString::make("NSFileSize"));
  attributes->set(NSDate::withTimeIntervalSince1970(modified),
                  NSString::make("NSFileModificationDate"));
  return attributes.autorelease().get();
}

Stock<id(id, SEL, id, id*)> stockAttributes;
id NSFileManager_attributes(id self, SEL command, id path, id* error) {
  if (const id attributes = stockAttributes(self, command, onDisk(path), error)) return attributes;
  return attributesOfShownPath(path);
}

Stock<id(id, SEL, id)> stockContents;
id NSFileManager_contents(id self, SEL command, id path) {
  return stockContents(self, command, onDisk(path));
}

// The collection in a property list file, or nil where the file holds none of the kind.
Owned<Object> collectionIn(id path, model::Kind kind) {
  if (!path) return {};
  const model::Result<foundation::PropertyList> list =
      foundation::readPropertyList(pathOnDisk(path));
  if (!list || list->root.kind() != kind) return {};
  return toObject(list->root);
}

id initialised(id self, id withObject, bool isDictionary) {
  if (!withObject) {
    Owned<Object>::adopt(Object(self)).reset();
    return nullptr;
  }
  const Object object(self);
  return (isDictionary ? initWith<"initWithDictionary:">(object, withObject)
                       : initWith<"initWithArray:">(object, withObject))
      .get();
}

id NSDictionary_initWithContentsOfFile(id self, SEL, id path) {
  return initialised(self, collectionIn(path, model::Kind::dictionary).get().get(), true);
}

id NSArray_initWithContentsOfFile(id self, SEL, id path) {
  return initialised(self, collectionIn(path, model::Kind::array).get().get(), false);
}

}  // namespace

void correctFiles() {
  replaceMethod("NSFileManager", "fileExistsAtPath:", &NSFileManager_fileExists, stockFileExists);
  replaceMethod("NSFileManager",
                "fileExistsAtPath:isDirectory:", &NSFileManager_fileExistsIsDirectory,
                stockFileExistsIsDirectory);
  replaceMethod("NSFileManager", "attributesOfItemAtPath:error:", &NSFileManager_attributes,
                stockAttributes);
  replaceMethod("NSFileManager", "contentsAtPath:", &NSFileManager_contents, stockContents);
  replaceMethod("NSDictionary", "initWithContentsOfFile:", &NSDictionary_initWithContentsOfFile);
  replaceMethod("NSArray", "initWithContentsOfFile:", &NSArray_initWithContentsOfFile);
}

}  // namespace desktop::faces
