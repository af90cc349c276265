// SPDX-License-Identifier: MIT
//
// Fields of a dictionary that somebody else wrote, read into variables with their kinds checked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/media_asset.h"
#include "model/result.h"
#include "model/value.h"

namespace lumifact::tool {

// Reads the fields of one dictionary. A missing or null field leaves its variable as it is. The
// first field of a wrong kind is remembered as the error, and nothing is read after it.
//
//   FieldReader fields(tree, "track");
//   fields.signed32("trackID", track.trackID);
//   if (fields.error()) return *fields.error();
class FieldReader {
 public:
  // `what` names the dictionary where the tree is none. REQUIRES: the tree outlives the reader.
  FieldReader(const model::Value& tree, std::string_view what);

  const std::optional<model::Error>& error() const { return _error; }
  void fail(const model::Error& error);
  void fail(std::string_view name, std::string_view problem);

  // The field's value where it is there and nothing has failed so far, else null.
  const model::Value* present(std::string_view name) const;

  // Any number, integer or real; a real is truncated for the integers, which keep the low 32 bits.
  void real(std::string_view name, double& into);
  void single(std::string_view name, float& into);
  void signed32(std::string_view name, std::int32_t& into);
  void unsigned32(std::string_view name, std::uint32_t& into);

  void text(std::string_view name, std::string& into);
  void dictionary(std::string_view name, model::Dictionary& into);
  // An integer, or up to four Latin-1 characters; missing ones are zero bytes.
  void fourCharCode(std::string_view name, model::FourCharCode& into);
  // A list of one of two lengths; empty where there is none.
  std::vector<double> numbers(std::string_view name, std::size_t length, std::size_t otherLength);

  // Appends each element of a list as `read` makes it, a function from Value to Result<T>.
  template <typename T, typename Read>
  void list(std::string_view name, std::vector<T>& into, const Read& read) {
    const model::Value* field = present(name);
    if (field == nullptr) return;
    if (field->asArray() == nullptr) return fail(name, "is no list");
    for (const model::Value& element : *field->asArray()) {
      auto item = read(element);
      if (!item) return fail(item.error());
      into.push_back(*std::move(item));
    }
  }

 private:
  // The field where it is there and a number.
  const model::Value* presentNumber(std::string_view name);

  const model::Dictionary* _fields;
  std::optional<model::Error> _error;
};

}  // namespace lumifact::tool
