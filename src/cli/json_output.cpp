#include "cli/json_output.h"

#include "core/display_text.h"

#include <array>
#include <charconv>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace tav {
namespace {

// Writes every field of the record by its name; the kind of field decides the form.
class RecordWriter {
  public:
    explicit RecordWriter(std::size_t feeds) : feeds_(feeds), json_(buffer_) {}

    void Write(Single value) { WriteNumber(value.Value()); }
    void Write(std::int16_t value) { json_.Int(value); }
    void Write(std::uint8_t value) { json_.Uint(value); }
    void Write(bool value) { json_.Bool(value); }
    void Write(const std::string& bytes) {
        const std::string text = DisplayText(bytes);
        json_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
    }
    void Write(const OptionalReal& value) {
        if (value) {
            WriteNumber(*value);
        } else {
            json_.Null();
        }
    }
    // Only the feeds that are counted: what else the list holds is not in use.
    void Write(const FeedList& feeds) {
        json_.StartArray();
        for (std::size_t i = 0; i < feeds_; ++i)
            Write(feeds[i]);
        json_.EndArray();
    }
    template <class Element>
    void Write(const std::vector<Element>& values) {
        WriteArray(values);
    }
    template <class Element, std::size_t Size>
    void Write(const std::array<Element, Size>& values) {
        WriteArray(values);
    }
    template <class Record>
    requires requires(const Record& record) {
        VisitFields(record, [](auto, const auto&) {});
    }
    void Write(const Record& record) {
        json_.StartObject();
        VisitFields(record, [this](std::string_view name, const auto& field) {
            Key(name);
            Write(field);
        });
        json_.EndObject();
    }

    void Key(std::string_view name) {
        json_.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
    }
    rapidjson::Writer<rapidjson::StringBuffer>& Json() { return json_; }
    std::string Text() const { return {buffer_.GetString(), buffer_.GetSize()}; }

  private:
    template <class Float>
    void WriteNumber(Float value) {
        std::array<char, 32> text{};
        const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
        json_.RawValue(text.data(), static_cast<std::size_t>(end - text.data()),
                       rapidjson::kNumberType);
    }
    template <class Elements>
    void WriteArray(const Elements& values) {
        json_.StartArray();
        for (const auto& value : values)
            Write(value);
        json_.EndArray();
    }

    std::size_t feeds_;
    rapidjson::StringBuffer buffer_;
    rapidjson::Writer<rapidjson::StringBuffer> json_;
};

void WriteError(RecordWriter& writer, const LoadError& error) {
    auto& json = writer.Json();
    json.StartObject();
    json.Key("number");
    json.Int(error.Fault.Number);
    json.Key("line");
    json.Int(error.Fault.Line);
    json.Key("title");
    writer.Write(error.Shown.Title);
    json.Key("text");
    writer.Write(error.Shown.Text);
    json.EndObject();
}

void WriteFault(RecordWriter& writer, const RuntimeError& fault) {
    auto& json = writer.Json();
    json.StartObject();
    json.Key("number");
    json.Int(fault.Number);
    json.Key("description");
    writer.Write(fault.Description);
    json.EndObject();
}

}  // namespace

std::string JsonLine(const Outcome& outcome, const SimulationRecord& record) {
    RecordWriter writer(record.NumFeeds);
    auto& json = writer.Json();
    json.StartObject();
    json.Key("file");
    writer.Write(outcome.File);
    json.Key("error");
    if (outcome.Error) {
        WriteError(writer, *outcome.Error);
    } else {
        json.Null();
    }
    json.Key("fault");
    if (outcome.Fault) {
        WriteFault(writer, *outcome.Fault);
    } else {
        json.Null();
    }
    json.Key("record");
    if (outcome.Error) {
        json.Null();
    } else {
        writer.Write(record);
    }
    json.EndObject();
    return writer.Text() + "\n";
}

}  // namespace tav
