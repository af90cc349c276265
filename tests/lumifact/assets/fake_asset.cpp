// SPDX-License-Identifier: MIT
#include "tests/lumifact/assets/fake_asset.h"

#include "bridge/class_builder.h"

namespace lumifact::host {
namespace {

using bridge::CLLocation;
using bridge::NSDate;
using bridge::NSObject;
using bridge::NSString;
using bridge::NSURL;
using bridge::Object;
using bridge::Owned;

int timesAskedForType = 0;

class FakeLocation : public bridge::Bound<FakeLocation, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = bridge::ClassBuilder<FakeLocation>("CLLocation")
                                  .method<"coordinate", &FakeLocation::coordinate>()
                                  .build();
    return made;
  }

  bridge::CLLocationCoordinate2D coordinate() const { return place; }

  bridge::CLLocationCoordinate2D place;
};

class FakeAsset : public bridge::Bound<FakeAsset, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSURL mainFileURL() const { return link(facts.mainFile); }
  NSURL fileURLForFullsizeImage() const { return link(facts.fullsizeImage); }
  NSURL fileURLForLargePreview() const { return link(facts.largePreview); }
  NSURL fileURLForMediumPreview() const { return link(facts.mediumPreview); }
  bool isVideo() const { return facts.isVideo; }
  NSUInteger pixelWidth() const { return facts.pixelWidth; }
  NSUInteger pixelHeight() const { return facts.pixelHeight; }
  CLLocation location() const {
    if (!facts.location) return {};
    auto made =
        Owned<CLLocation>::adopt(bridge::send<CLLocation, "new">(FakeLocation::classObject()));
    FakeLocation::of(made->get()).place = {facts.location->latitude, facts.location->longitude};
    return made.autorelease();
  }

  NSString uuid() const { return facts.uuid.empty() ? NSString() : NSString::make(facts.uuid); }
  NSString uniformTypeIdentifier() const {
    ++timesAskedForType;
    return NSString::make(facts.uniformTypeIdentifier);
  }
  double duration() const { return facts.duration; }
  short exifOrientation() const { return facts.exifOrientation; }
  NSDate creationDate() const {
    return facts.creationDate ? NSDate::withTimeIntervalSince1970(*facts.creationDate) : NSDate();
  }
  Object localizedGeoDescription() const { return facts.place; }

  AssetFacts facts;

 private:
  static NSURL link(const std::string& text) {
    return text.empty() ? NSURL() : NSURL::withString(NSString::make(text));
  }
};

Class FakeAsset::classObject() {
  static const Class made =
      bridge::ClassBuilder<FakeAsset>("PHAsset")
          .method<"mainFileURL", &FakeAsset::mainFileURL>()
          .method<"fileURLForFullsizeImage", &FakeAsset::fileURLForFullsizeImage>()
          .method<"fileURLForLargePreview", &FakeAsset::fileURLForLargePreview>()
          .method<"fileURLForMediumPreview", &FakeAsset::fileURLForMediumPreview>()
          .method<"isVideo", &FakeAsset::isVideo>()
          .method<"pixelWidth", &FakeAsset::pixelWidth>()
          .method<"pixelHeight", &FakeAsset::pixelHeight>()
          .method<"location", &FakeAsset::location>()
          .method<"uuid", &FakeAsset::uuid>()
          .method<"uniformTypeIdentifier", &FakeAsset::uniformTypeIdentifier>()
          .method<"duration", &FakeAsset::duration>()
          .method<"exifOrientation", &FakeAsset::exifOrientation>()
          .method<"creationDate", &FakeAsset::creationDate>()
          .method<"localizedGeoDescription", &FakeAsset::localizedGeoDescription>()
          .build();
  return made;
}

}  // namespace

bridge::PHAsset makeAsset(const AssetFacts& facts) {
  auto made =
      Owned<bridge::PHAsset>::adopt(bridge::send<bridge::PHAsset, "new">(FakeAsset::classObject()));
  FakeAsset::of(made->get()).facts = facts;
  return made.autorelease();
}

int questionsForType() {
  return timesAskedForType;
}

}  // namespace lumifact::host
