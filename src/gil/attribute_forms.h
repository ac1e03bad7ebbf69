// SPDX-License-Identifier: MIT
// What may stand behind each attribute keyword, as two tables: the form of the attribute's value,
// and the words of each enumerated form.
#ifndef PANDREL_GIL_ATTRIBUTE_FORMS_H
#define PANDREL_GIL_ATTRIBUTE_FORMS_H

#include <cstdint>

enum ValueForm : uint8_t {
  kNoForm,  // not an attribute keyword
  kInteger,
  kString,
  kIntegerOrString,
  kName,  // identifier, string or nil
  kNameList,
  kStringList,
  kEmptyList,
  // Enumerations: one word of the table.
  kFirstEnumeration,
  kBoolean = kFirstEnumeration,
  kState,
  kColumnAlignment,
  kRowAlignment,
  kCompassPoint,
  kButtonType,
  kDrawingModel,
  kEventType,
  kGroupType,
  kLabelType,
  kOrientation,  // of layouts too
  kMenuType,
  kSettingType,
  kTextType,
  kArgType,
  kLastEnumeration = kArgType,
  // Lists of words of an enumeration.
  kBooleanList,
  kLabelTypeList,
  kStateList,
  kEventTypeList,
};

// The form of the value that follows an attribute keyword, kNoForm for any other token.
ValueForm AttributeForm(int32_t token);

// Whether `token` is a word of the enumeration.
bool IsWordOf(ValueForm enumeration, int32_t token);

// The enumeration whose words make up the list, kNoForm when `form` is no such list.
ValueForm ElementForm(ValueForm form);

// Whether the token names an element type, which an object's ":type" wants.
bool IsElementType(int32_t token);

#endif
