// SPDX-License-Identifier: MIT
//
// Files, links and the host's own bundle.
#pragma once

#include "bridge/foundation/ns_collections.h"
#include "bridge/foundation/ns_data.h"
#include "bridge/foundation/ns_string.h"

namespace bridge {

// What the file manager says of a file.
struct FileAttributes : NSDictionary {
  using NSDictionary::NSDictionary;

  unsigned long long fileSize() const { return send<unsigned long long, "fileSize">(*this); }
  NSDate fileModificationDate() const { return send<NSDate, "fileModificationDate">(*this); }
};

struct NSFileManager : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSFileManager">(); }
  static NSFileManager defaultManager() {
    return send<NSFileManager, "defaultManager">(classObject());
  }

  bool fileExists(NSString path) const { return send<bool, "fileExistsAtPath:">(*this, path); }
  // Of the item itself, links not followed; nil where they cannot be read. The reason is not asked
  // for.
  FileAttributes attributesOfItem(NSString path) const {
    return send<FileAttributes, "attributesOfItemAtPath:error:">(*this, path,
                                                                 static_cast<id*>(nullptr));
  }
};

struct NSURL : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSURL">(); }

  // Nil where the text is no URL.
  static NSURL withString(NSString text) {
    return send<NSURL, "URLWithString:">(classObject(), text);
  }
  static NSURL fileURLWithPath(NSString path) {
    return send<NSURL, "fileURLWithPath:">(classObject(), path);
  }

  // The path without escapes.
  NSString path() const { return send<NSString, "path">(*this); }
  // The whole link with its escapes.
  NSString absoluteString() const { return send<NSString, "absoluteString">(*this); }
};

struct NSBundle : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"NSBundle">(); }
  static NSBundle mainBundle() { return send<NSBundle, "mainBundle">(classObject()); }

  NSString bundleIdentifier() const { return send<NSString, "bundleIdentifier">(*this); }
};

}  // namespace bridge
