#include "Services/DataDocument.h"

#include "Services/JsonReader.h"
#include "Services/JsonWriter.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>
#include <string_view>

namespace lanternix {

namespace {

// One overload of each for every type that a member has.

bool readValue(JsonReader &reader, QString &value) {
  return reader.readString(value);
}

bool readValue(JsonReader &reader, QUuid &value) {
  return reader.readUuid(value);
}

bool readValue(JsonReader &reader, qint64 &value) {
  return reader.readInteger(value);
}

bool readValue(JsonReader &reader, bool &value) {
  return reader.readBoolean(value);
}

bool readValue(JsonReader &reader, Date &value) {
  return reader.readReal(value.secondsSinceReferenceDate);
}

bool readValue(JsonReader &reader, std::optional<Date> &value) {
  return readValue(reader, value.emplace());
}

bool readValue(JsonReader &reader, ItemType &value) {
  QByteArrayView text;
  if (!reader.readUtf8(text)) {
    return false;
  }
  const auto type = itemTypeFromRawValue(QUtf8StringView(text.data(), text.size()));
  value = type.value_or(value);
  return type.has_value() || reader.fail("a known type of item is expected");
}

void writeValue(JsonWriter &writer, const QString &value) {
  writer.writeString(value);
}

void writeValue(JsonWriter &writer, const QUuid &value) {
  writer.writeUuid(value);
}

void writeValue(JsonWriter &writer, qint64 value) {
  writer.writeInteger(value);
}

void writeValue(JsonWriter &writer, bool value) {
  writer.writeBoolean(value);
}

void writeValue(JsonWriter &writer, const Date &value) {
  writer.writeReal(value.secondsSinceReferenceDate);
}

void writeValue(JsonWriter &writer, ItemType value) {
  writer.writeString(rawValue(value));
}

// Lists of records need the tables below, which need these.
bool readValue(JsonReader &reader, QList<PathGroup> &groups);
bool readValue(JsonReader &reader, QList<PathItem> &items);
void writeValue(JsonWriter &writer, const QList<PathGroup> &groups);
void writeValue(JsonWriter &writer, const QList<PathItem> &items);

template <typename Value>
void writeMember(JsonWriter &writer, std::string_view key, const Value &value) {
  writer.writeKey(key);
  writeValue(writer, value);
}

/// An absent value has no member at all.
void writeMember(JsonWriter &writer, std::string_view key, const std::optional<Date> &value) {
  if (value.has_value()) {
    writeMember(writer, key, *value);
  }
}

/// How one member of a record is read and written.
template <typename Record>
struct Field {
  std::string_view key;
  bool isRequired = true;
  bool (*read)(JsonReader &, Record &);
  void (*write)(JsonWriter &, std::string_view, const Record &);
};

/// A member that every document has.
template <auto member, typename Record>
constexpr Field<Record> required(std::string_view key) {
  return {key, true,
          [](JsonReader &reader, Record &record) { return readValue(reader, record.*member); },
          [](JsonWriter &writer, std::string_view name, const Record &record) {
            writeMember(writer, name, record.*member);
          }};
}

/// A member that may be missing or null, which leaves it as a fresh record has it.
template <auto member, typename Record>
constexpr Field<Record> optional(std::string_view key) {
  return {key, false,
          [](JsonReader &reader, Record &record) {
            record.*member = Record().*member;
            return reader.skipNull() || readValue(reader, record.*member);
          },
          [](JsonWriter &writer, std::string_view name, const Record &record) {
            writeMember(writer, name, record.*member);
          }};
}

// The tables are sorted by key: that is the order in the document.

constexpr std::array itemFields{
    required<&PathItem::dateAdded, PathItem>("dateAdded"),
    required<&PathItem::groupId, PathItem>("groupId"),
    required<&PathItem::id, PathItem>("id"),
    optional<&PathItem::lastAccessed, PathItem>("lastAccessed"),
    required<&PathItem::name, PathItem>("name"),
    optional<&PathItem::order, PathItem>("order"),
    required<&PathItem::path, PathItem>("path"),
    required<&PathItem::type, PathItem>("type"),
};

constexpr std::array groupFields{
    required<&PathGroup::colorName, PathGroup>("colorName"),
    required<&PathGroup::iconName, PathGroup>("iconName"),
    required<&PathGroup::id, PathGroup>("id"),
    required<&PathGroup::isExpanded, PathGroup>("isExpanded"),
    required<&PathGroup::name, PathGroup>("name"),
    required<&PathGroup::order, PathGroup>("order"),
};

/// The index of the field with this key, \p count when there is none. Tried from \p guess on,
/// because documents mostly have their keys in the order of the table.
template <typename Record, std::size_t count>
std::size_t indexOf(std::string_view key, const std::array<Field<Record>, count> &fields,
                    std::size_t guess) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t index = (guess + i) % count;
    if (fields[index].key == key) {
      return index;
    }
  }
  return count;
}

/// Reads an object: each known member by its field, the others not at all.
template <typename Record, std::size_t count>
bool readRecord(JsonReader &reader, Record &record,
                const std::array<Field<Record>, count> &fields) {
  if (!reader.beginObject()) {
    return false;
  }
  std::bitset<count> seen;
  std::size_t index = 0;
  QByteArrayView key;
  while (reader.nextMember(key)) {
    const std::string_view name(key.data(), static_cast<std::size_t>(key.size()));
    const std::size_t found = indexOf(name, fields, index);
    if (found == count) {
      reader.skipValue();
    } else if (fields[found].read(reader, record)) {
      seen.set(found);
      index = found + 1;
    }
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (fields[i].isRequired && !seen[i]) {
      return reader.failForMissing(fields[i].key);
    }
  }
  return !reader.hasFailed();
}

template <typename Record, std::size_t count>
bool readRecords(JsonReader &reader, QList<Record> &records,
                 const std::array<Field<Record>, count> &fields) {
  records.clear();  // an earlier list of the same key no longer counts
  if (!reader.beginArray()) {
    return false;
  }
  while (reader.nextElement() && readRecord(reader, records.emplaceBack(), fields)) {
  }
  return !reader.hasFailed();
}

template <typename Record, std::size_t count>
void writeRecord(JsonWriter &writer, const Record &record,
                 const std::array<Field<Record>, count> &fields) {
  writer.beginObject();
  for (const Field<Record> &field : fields) {
    field.write(writer, field.key, record);
  }
  writer.endObject();
}

template <typename Record, std::size_t count>
void writeRecords(JsonWriter &writer, const QList<Record> &records,
                  const std::array<Field<Record>, count> &fields) {
  writer.beginArray();
  for (const Record &record : records) {
    writer.beginElement();
    writeRecord(writer, record, fields);
  }
  writer.endArray();
}

bool readValue(JsonReader &reader, QList<PathGroup> &groups) {
  return readRecords(reader, groups, groupFields);
}

bool readValue(JsonReader &reader, QList<PathItem> &items) {
  return readRecords(reader, items, itemFields);
}

void writeValue(JsonWriter &writer, const QList<PathGroup> &groups) {
  writeRecords(writer, groups, groupFields);
}

void writeValue(JsonWriter &writer, const QList<PathItem> &items) {
  writeRecords(writer, items, itemFields);
}

constexpr std::array documentFields{
    required<&DataDocument::groups, DataDocument>("groups"),
    required<&DataDocument::items, DataDocument>("items"),
};

bool hasFiniteDates(const PathItem &item) {
  return std::isfinite(item.dateAdded.secondsSinceReferenceDate) &&
         (!item.lastAccessed || std::isfinite(item.lastAccessed->secondsSinceReferenceDate));
}

/// About what the text will take. Names and paths are counted with room for some escapes.
qsizetype expectedSize(const DataDocument &document) {
  constexpr qsizetype frame = 400;
  qsizetype size = frame * (1 + document.groups.size() + document.items.size());
  for (const PathItem &item : document.items) {
    size += (item.name.size() + item.path.size()) * 5 / 4;
  }
  return size;
}

}  // namespace

std::optional<QByteArray> DataDocument::encoded() const {
  if (!std::all_of(items.begin(), items.end(), hasFiniteDates)) {
    return {};
  }
  JsonWriter writer(expectedSize(*this));
  writeRecord(writer, *this, documentFields);
  return writer.takeText();
}

std::optional<DataDocument> DataDocument::decoded(QByteArrayView bytes, QString *error) {
  JsonReader reader(bytes);
  DataDocument document;
  if (readRecord(reader, document, documentFields) && reader.readEnd()) {
    return document;
  }
  if (error != nullptr) {
    *error = reader.error();
  }
  return {};
}

}  // namespace lanternix
