// SPDX-License-Identifier: MIT
//
// Paths of the phone's file system lead below the device root, and property lists are read by a
// reader of our own: Foundation's knows no binary ones, crashes on deep nesting, hangs on large
// files and prints on standard error.
#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "desktop/foundation/property_list.h"
#include "desktop/foundation_runtime/corrections.h"
#include "desktop/foundation_runtime/replacement.h"

namespace desktop::foundation {
namespace {

using bridge::NSString;

// Where a path lies on disk; nil stays nil.
std::string pathOnDisk(id path) {
  return currentOptions().root.onDisk(NSString(path).utf8());
}
id onDisk(id path) {
  return path ? NSString::make(pathOnDisk(path)).get() : nullptr;
}

bridge::Stock<BOOL(id, SEL, id)> stockFileExists;
BOOL NSFileManager_fileExists(id self, SEL command, id path) {
  return stockFileExists(self, command, onDisk(path));
}

bridge::Stock<BOOL(id, SEL, id, BOOL*)> stockFileExistsIsDirectory;
BOOL NSFileManager_fileExistsIsDirectory(id self, SEL command, id path, BOOL* isDirectory) {
  return stockFileExistsIsDirectory(self, command, onDisk(path), isDirectory);
}

bridge::Stock<id(id, SEL, id, id*)> stockAttributes;
id NSFileManager_attributes(id self, SEL command, id path, id* error) {
  return stockAttributes(self, command, onDisk(path), error);
}

bridge::Stock<id(id, SEL, id)> stockContents;
id NSFileManager_contents(id self, SEL command, id path) {
  return stockContents(self, command, onDisk(path));
}

// The collection in a property list file, or nil where the file holds none of the kind.
bridge::Owned<bridge::Object> collectionIn(id path, model::Kind kind) {
  if (!path) return {};
  const model::Result<PropertyList> list = readPropertyList(pathOnDisk(path));
  if (!list || list->root.kind() != kind) return {};
  return bridge::toObject(list->root);
}

id initialised(id self, id withObject, bool isDictionary) {
  if (!withObject) {
    bridge::send<void, "release">(self);
    return nullptr;
  }
  return isDictionary ? bridge::send<id, "initWithDictionary:">(self, withObject)
                      : bridge::send<id, "initWithArray:">(self, withObject);
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

}  // namespace desktop::foundation
