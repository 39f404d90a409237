// The attributes are read as the tokenizer reads them and written one by one, each with the white
// space ahead of it. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/tag_mends.h"

#include "document/wml/tag_reader.h"
#include "document/wml/wml_characters.h"

#include <algorithm>
#include <set>

namespace quillmere::wml {

namespace {

class StartTagMender {
public:
    StartTagMender(const WmlToken& tag, const CharacterMender& characters)
        : tag_(tag)
        , source_(tag.source)
        , characters_(characters)
    {
    }

    MendedToken run()
    {
        TagReader reader(source_, 0);
        mendName(reader.name());
        done_ = 1 + reader.name().size();
        while (const auto attribute = reader.next())
            mendAttribute(*attribute);
        mendTail(reader.isEmpty());
        return std::move(result_);
    }

private:
    void note(MendRule rule, std::string_view before, std::string_view after)
    {
        result_.faults.push_back({rule, std::string(before), std::string(after)});
    }

    void mendName(std::string_view name)
    {
        const auto known = ruleOf(tag_.element).name;
        const auto written = known.empty() ? name : known;
        if (written != name) note(MendRule::WrongCase, name, written);
        result_.text.append("<").append(written);
    }

    /// What stands ahead of an attribute is white space, or else becomes a blank.
    void mendGap(std::string_view gap)
    {
        const bool isSpace = !gap.empty()
            && std::all_of(gap.begin(), gap.end(), [](char c) { return is(c, Space); });
        if (!isSpace) note(MendRule::BrokenTag, gap, " ");
        result_.text += isSpace ? gap : std::string_view(" ");
    }

    void mendAttribute(const WmlAttribute& attribute)
    {
        const auto begin = static_cast<std::size_t>(attribute.source.data() - source_.data());
        const auto gap = source_.substr(done_, begin - done_);
        done_ = begin + attribute.source.size();
        const auto known = knownAttribute(tag_.element, attribute.name);
        const auto name = known.empty() ? attribute.name : known;
        if (!characters_.isName(name)) return note(MendRule::BrokenTag, attribute.source, "");
        if (!names_.emplace(name).second)
            return note(MendRule::DoubledAttribute, attribute.source, "");
        mendGap(gap);
        if (name != attribute.name) note(MendRule::WrongCase, attribute.name, name);
        result_.text += name;
        mendValue(attribute, name);
    }

    void mendValue(const WmlAttribute& attribute, std::string_view name)
    {
        const char quote = attribute.quote == '\0' ? '"' : attribute.quote;
        auto value = characters_.value(attribute.value, quote);
        if (!attribute.hasValue) value.text = isFlagAttribute(name) ? "true" : name;
        const auto written = quote + value.text + quote;
        const auto rest = attribute.source.substr(attribute.name.size());
        for (const auto rule : {MendRule::BareAmpersand, MendRule::UnknownEntity,
                 MendRule::BareLess, MendRule::BadCharacter})
            if (value.rules.has(rule)) note(rule, attribute.value, value.text);
        if (!attribute.hasValue)
            note(MendRule::MissingValue, name, std::string(name) + "=" + written);
        if (attribute.hasValue && attribute.quote == '\0')
            note(MendRule::UnquotedValue, rest.substr(rest.find('=') + 1), written);
        const bool isRight = attribute.quote != '\0' && value.rules.isEmpty();
        result_.text += isRight ? std::string(rest) : "=" + written;
    }

    void mendTail(bool isEmpty)
    {
        auto space = done_;
        while (space < source_.size() && is(source_[space], Space))
            ++space;
        const auto tail = source_.substr(space);
        const std::string_view right = isEmpty ? "/>" : ">";
        if (tail != right) note(MendRule::BrokenTag, tail, right);
        if (tail == right) result_.text.append(source_, done_, space - done_);
        result_.text += right;
    }

    const WmlToken& tag_;
    std::string_view source_;
    const CharacterMender& characters_;
    MendedToken result_;
    std::size_t done_ = 0; // of the source
    std::set<std::string, std::less<>> names_;
};

} // namespace

MendedToken mendedStartTag(const WmlToken& tag, const CharacterMender& characters)
{
    return StartTagMender(tag, characters).run();
}

} // namespace quillmere::wml
