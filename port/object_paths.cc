// SPDX-License-Identifier: MIT
#include "port/object_paths.h"

#include <algorithm>
#include <map>

#include "gil/tokens.h"

namespace port {
namespace {

using Path = std::vector<std::string>;

bool HasItem(const PortObject& object, const std::string& label) {
  const std::vector<std::string> labels = ItemLabels(object);
  return std::find(labels.begin(), labels.end(), label) != labels.end();
}

// The objects of a model by name.
class Names {
 public:
  explicit Names(const Model& model) : model_(model) {
    for (std::size_t i = 0; i < model.objects.size(); ++i) {
      by_name_.emplace(model.objects[i].name, static_cast<int>(i));
    }
  }

  // The object of that name in the file (any, for -1) whose owners fit the path up to `end` best.
  int Find(int file, const Path& path, std::size_t end) const {
    int best = -1;
    std::size_t best_fit = 0;
    const auto [first, last] = by_name_.equal_range(path[end]);
    for (auto at = first; at != last; ++at) {
      if (file >= 0 && model_.objects[at->second].file != file) continue;
      const std::size_t fit = Fit(at->second, path, end);
      if (best >= 0 && fit <= best_fit) continue;
      best = at->second;
      best_fit = fit;
    }
    return best;
  }

 private:
  // How many names of the path in front of `end` are owners of the object.
  std::size_t Fit(int object, const Path& path, std::size_t end) const {
    std::size_t fit = 0;
    int at = object;
    for (int steps = 0; at >= 0 && steps < 100; ++steps) {
      at = model_.objects[at].parent;
      if (at >= 0 && std::find(path.begin(), path.begin() + end, model_.objects[at].name) !=
                         path.begin() + end) {
        ++fit;
      }
    }
    return fit;
  }

  const Model& model_;
  std::multimap<std::string, int> by_name_;
};

struct Place {
  int object = -1;
  std::string item;
};

int FileOfName(const Model& model, const std::string& name) {
  for (std::size_t i = 0; i < model.files.size(); ++i) {
    if (model.files[i].name == name) return static_cast<int>(i);
  }
  return -1;
}

// Looks the path's names up in the file, -1 for all.
Place ResolveIn(const Model& model, const Names& names, int file, std::size_t begin,
                const Path& path) {
  const std::size_t last = path.size() - 1;
  if (last > begin) {
    const int before = names.Find(file, path, last - 1);
    if (before >= 0 && HasItem(model.objects[before], path[last])) return {before, path[last]};
  }
  const int object = names.Find(file, path, last);
  if (object >= 0 || last == begin) return {object, ""};
  const int holder = names.Find(file, path, last - 1);
  return {holder, holder < 0 ? "" : path[last]};
}

// A name of an object's own action means one of its file if there is one.
Place Resolve(const Model& model, const Names& names, int file, const Path& path) {
  if (path.empty()) return {};
  const int named = path.size() > 1 ? FileOfName(model, path[0]) : -1;
  if (named >= 0) return ResolveIn(model, names, named, 1, path);
  const Place place = ResolveIn(model, names, file, 0, path);
  return place.object >= 0 ? place : ResolveIn(model, names, -1, 0, path);
}

}  // namespace

std::vector<std::string> ItemLabels(const PortObject& object) {
  const GilAttribute* items = object.type == MENU      ? object.Find(MENU_ITEM_LABELS)
                              : object.type == SETTING ? object.Find(CHOICES)
                                                       : nullptr;
  std::vector<std::string> labels;
  if (!items) return labels;
  for (const GilValue& value : items->values) labels.push_back(value.text);
  return labels;
}

void ResolvePaths(Model& model) {
  const Names names(model);
  for (Connection& connection : model.connections) {
    const int file = connection.object >= 0 ? connection.file : -1;
    const Place from = Resolve(model, names, file, connection.from);
    connection.from_object = from.object;
    connection.from_item = from.item;
    const Place to = Resolve(model, names, file, connection.to);
    connection.to_object = to.object;
    connection.to_item = to.item;
    if (connection.object < 0) continue;
    // As in the converter, an action whose path names something unknown is the object's own. An
    // item's label may stand without the object.
    const PortObject& holder = model.objects[connection.object];
    if (connection.from_object < 0) {
      connection.from_object = connection.object;
      if (!connection.from.empty() && HasItem(holder, connection.from.back())) {
        connection.from_item = connection.from.back();
      }
    }
  }
}

}  // namespace port
