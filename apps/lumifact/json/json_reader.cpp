// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <vector>

#include "apps/lumifact/json/json.h"
#include "apps/lumifact/json/json_marks.h"

namespace lumifact::tool {

namespace {

// Builds the tree out of the parser's events. The events' names and signatures are the parser's.
class TreeBuilder {
 public:
  bool null() { return add({}); }
  bool boolean(bool value) { return add(value); }
  bool number_integer(std::int64_t value) { return add(value); }
  bool number_unsigned(std::uint64_t value) { return add(value); }
  bool number_float(double value, const std::string& /*text*/) { return add(value); }
  bool string(std::string& value) { return add(std::move(value)); }
  bool binary(std::vector<std::uint8_t>& /*bytes*/) { return fail("binary value"); }

  bool start_object(std::size_t /*count*/) {
    // Right after its mark, so that what it holds is taken as it stands.
    const bool literal =
        !_open.empty() && _open.back().entries.empty() && _open.back().key == "$dictionary";
    return open({.isObject = true, .isLiteral = literal});
  }
  bool key(std::string& text) {
    _open.back().key = std::move(text);
    return true;
  }
  bool end_object() {
    Container object = close();
    if (object.isLiteral || object.entries.size() != 1) return add(std::move(object.entries));
    auto& [key, value] = *object.entries.begin();
    if (!isJsonMark(key)) return add(std::move(object.entries));
    auto marked = markedValue(key, std::move(value));
    return marked ? add(*std::move(marked)) : fail(marked.error().reason);
  }
  bool start_array(std::size_t /*count*/) { return open({}); }
  bool end_array() { return add(close().elements); }

  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const nlohmann::json::exception& error) {
    // "[json.exception.parse_error.101] parse error at line 1, column 1: ..."
    const std::string_view message = error.what();
    const std::size_t name = message.find("] ");
    return fail(std::string(name == std::string_view::npos ? message : message.substr(name + 2)));
  }

  model::Result<model::Value> result() {
    if (_error) return *_error;
    return std::move(_root);
  }

 private:
  // An object or array whose end has not been met.
  struct Container {
    bool isObject = false;
    bool isLiteral = false;  // the object inside a "$dictionary"
    std::string key = {};    // the last key met
    model::Dictionary entries = {};
    model::Array elements = {};
  };

  bool fail(std::string reason) {
    _error = model::Error{std::move(reason)};
    return false;
  }
  bool open(Container container) {
    if (_open.size() >= model::maximumNesting) return fail("nested too deeply");
    _open.push_back(std::move(container));
    return true;
  }
  Container close() {
    Container container = std::move(_open.back());
    _open.pop_back();
    return container;
  }
  bool add(model::Value value) {
    if (_open.empty()) {
      _root = std::move(value);
    } else if (_open.back().isObject) {
      _open.back().entries.insert_or_assign(std::move(_open.back().key), std::move(value));
    } else {
      _open.back().elements.push_back(std::move(value));
    }
    return true;
  }

  std::vector<Container> _open;
  model::Value _root;
  std::optional<model::Error> _error;
};

}  // namespace

model::Result<model::Value> parseJson(std::string_view text) {
  TreeBuilder builder;
  nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
  return builder.result();
}

}  // namespace lumifact::tool
