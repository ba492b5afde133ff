#include "lesson/border/spans_json.hpp"

#include <string_view>

namespace lesson
{

namespace
{

void addUnlessEmpty(Json& json, std::string_view name, std::string_view value)
{
    if (!value.empty()) {
        json.member(name, value);
    }
}

void addMembers(Json& json, const Span& span)
{
    switch (span.kind) {
    case Span::Kind::text:
        json.member("text", span.text);
        break;
    case Span::Kind::formula:
        json.member("formula", span.text);
        break;
    case Span::Kind::ion:
        json.member("ion", span.text);
        json.member("charge", span.detail);
        break;
    case Span::Kind::quantity:
        json.member("quantity", span.text);
        addUnlessEmpty(json, "of", span.detail);
        addUnlessEmpty(json, "index", span.index);
        break;
    case Span::Kind::number:
        json.member("number", span.text);
        break;
    case Span::Kind::unit:
        json.member("unit", span.text);
        break;
    case Span::Kind::fraction:
        json.key("fraction").elements([&] {
            add(json, span.over);
            add(json, span.under);
        });
        break;
    case Span::Kind::name:
        json.member("name", span.text);
        break;
    case Span::Kind::nameless: // what is rendered has none of these
    case Span::Kind::sentence:
    case Span::Kind::line:
        break;
    }
}

} // namespace

void add(Json& json, const Spans& spans)
{
    json.array(spans, [&](const Span& span) { json.object([&] { addMembers(json, span); }); });
}

} // namespace lesson
