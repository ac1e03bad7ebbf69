// SPDX-License-Identifier: MIT
#include <algorithm>

#include "gil/tokens.h"
#include "port/escape.h"
#include "port/generate.h"

namespace port {
namespace {

using kainjow::mustache::list;

class Resources {
 public:
  void Add(const std::string& widget, const std::string& resource, const std::string& value) {
    Data row;
    row.set("name", "*" + widget + "." + resource);
    row.set("value", value);
    rows_.push_back(row);
  }
  const Data& Rows() const { return rows_; }

 private:
  Data rows_{list{}};
};

// The object's widget of that class, or null.
const PortWidget* WidgetOf(const PortObject& object, const char* class_name) {
  for (const PortWidget& widget : object.widgets) {
    if (widget.class_name == class_name) return &widget;
  }
  return nullptr;
}

// Motif complains of a value outside the scale.
void AddScale(const PortObject& object, Resources& resources) {
  const PortWidget* scale = WidgetOf(object, "XmScale");
  if (!scale || !object.Find(INITIAL_VALUE)) return;
  const int minimum = object.Number(MIN_VALUE, 0);
  const int maximum = object.Number(MAX_VALUE, 100);
  if (minimum >= maximum) return;
  const int value = object.Number(INITIAL_VALUE, minimum);
  resources.Add(scale->name, "value", std::to_string(std::clamp(value, minimum, maximum)));
}

void AddField(const PortObject& object, Resources& resources) {
  const int length = object.Number(STORED_LENGTH);
  if (length <= 0) return;
  for (const char* class_name : {"XmTextField", "XmText"}) {
    if (const PortWidget* field = WidgetOf(object, class_name)) {
      resources.Add(field->name, "maxLength", std::to_string(length));
    }
  }
}

void AddMessage(const PortObject& object, Resources& resources) {
  const PortWidget* label = WidgetOf(object, "XmLabel");
  if (label && object.Is(LABEL_BOLD, T)) resources.Add(label->name, "renderTable", "bold");
}

// Labels beside fields and settings lie in row-columns, for which compact.ad has a line. These do
// not.
void AddLabels(const PortObject& object, Resources& resources) {
  for (const PortWidget& widget : object.widgets) {
    if (widget.class_name == "XmLabel") resources.Add(widget.name, "renderTable", "bold");
  }
}

// A pinned dialog stays when one of its buttons is pressed.
void AddDialog(const Model& model, int index, Resources& resources) {
  if (!model.objects[index].Is(PINNED, T)) return;
  for (const PortWindow& window : model.windows) {
    if (window.object == index && !window.work.empty()) {
      resources.Add(window.work[0], "autoUnmanage", "False");
    }
  }
}

}  // namespace

std::string ResourceFile(const Model& model, const Templates& templates) {
  Resources resources;
  for (std::size_t i = 0; i < model.objects.size(); ++i) {
    const PortObject& object = model.objects[i];
    switch (object.type) {
      case SLIDER:
      case GAUGE:
        AddScale(object, resources);
        AddLabels(object, resources);
        break;
      case SCROLLING_LIST:
        AddLabels(object, resources);
        break;
      case TEXT_FIELD:
        AddField(object, resources);
        break;
      case MESSAGE:
        AddMessage(object, resources);
        break;
      case POPUP_WINDOW:
        AddDialog(model, static_cast<int>(i), resources);
        break;
      default:
        break;
    }
  }
  for (const ButtonGlyph& glyph : model.button_glyphs) {
    resources.Add(glyph.widget, "labelType", "PIXMAP");
    resources.Add(glyph.widget, "labelPixmap", glyph.path);
  }
  Data data;
  data.set("title", Title(model));
  data.set("compact", templates.Plain("compact.ad"));
  data.set("resources", resources.Rows());
  return templates.Fill("App.ad", data, ResourceText);
}

}  // namespace port
