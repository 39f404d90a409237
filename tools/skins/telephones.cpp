// The table of telephones and the records made of it; telephone_pictures.cpp draws them.

#include "telephones.h"

#include "skin_items.h"

#include <cmath>

namespace quillmere {

namespace {

constexpr int kPreviewWidth = 400; // of the window round a telephone that is not wider

constexpr BodyPart kKeypadBody[] = {{{20, 8, 260, 616}, 58}};
constexpr BodyPart kWideBody[] = {{{12, 8, 656, 344}, 40}};
constexpr BodyPart kFoldingBody[] = {{{20, 8, 260, 292}, 34}, {{20, 312, 260, 320}, 34},
    {{46, 292, 64, 28}, 12}, {{118, 292, 64, 28}, 12}, {{190, 292, 64, 28}, 12}};

constexpr Telephone kTelephones[] = {
    {
        .maker = "Tallis",
        .model = "Nordlicht",
        .variant = "20",
        .file = "nordlicht",
        .tokens = kNordlicht,
        .picture = {50, 64, 300, 640},
        .body = kKeypadBody,
        .engraving = {60, 56, 180, 20},
        .speaker = {120, 38, 60, 6},
        .bezel = {48, 84, 204, 224},
        .bezelCorner = 14,
        .screen = {58, 94, 184, 204},
        .keys = {{{54, 332, 60, 36}, "corner-down-left"}, {{186, 332, 60, 36}, "arrow-left"},
            {{119, 326, 62, 48}, "check"}},
        .pad = {{60, 400, 180, 166}, 3, 10},
        .minWidth = 101,
        .minHeight = 52,
        .maxWidth = 184,
        .maxHeight = 156,
    },
    {
        .maker = "Orvo",
        .model = "Weitblick",
        .variant = "7",
        .file = "weitblick",
        .tokens = kWeitblick,
        .picture = {20, 64, 680, 366},
        .body = kWideBody,
        .engraving = {40, 24, 452, 20},
        .speaker = {560, 60, 40, 6},
        .bezel = {36, 48, 468, 212},
        .bezelCorner = 16,
        .screen = {48, 60, 444, 188},
        .keys = {{{528, 120, 104, 44}, "corner-down-left"}, {{528, 240, 104, 44}, "arrow-left"},
            {{528, 176, 104, 52}, "check"}},
        .pad = {{40, 276, 460, 34}, 12, 6},
        .minWidth = 160,
        .minHeight = 80,
        .maxWidth = 444,
        .maxHeight = 140,
    },
    {
        .maker = "Kesslin",
        .model = "Falter",
        .variant = "3",
        .file = "falter",
        .tokens = kFalter,
        .picture = {50, 64, 300, 648},
        .body = kFoldingBody,
        .engraving = {60, 264, 180, 20},
        .speaker = {126, 24, 48, 5},
        .bezel = {44, 40, 212, 220},
        .bezelCorner = 12,
        .screen = {54, 50, 192, 200},
        .keys = {{{40, 340, 64, 40}, "corner-down-left"}, {{196, 340, 64, 40}, "arrow-left"},
            {{120, 336, 60, 60}, "check"}},
        .pad = {{48, 416, 204, 184}, 3, 8},
        .minWidth = 101,
        .minHeight = 64,
        .maxWidth = 192,
        .maxHeight = 152,
    },
};

/// A box of the telephone in the preview's window.
Box placed(const Telephone& telephone, const Box& box)
{
    return {
        telephone.picture.left + box.left, telephone.picture.top + box.top, box.width, box.height};
}

Box grown(const Box& box, int by)
{
    return {box.left - by, box.top - by, box.width + 2 * by, box.height + 2 * by};
}

std::string fileOf(const Telephone& telephone, std::string_view what)
{
    return std::string(telephone.file) + std::string(what) + ".png";
}

/// Writes the items of one telephone, with points for the screen at hand.
class RecordMaker {
public:
    RecordMaker(const Telephone& telephone, bool bigFonts)
        : telephone_(telephone)
        , bigFonts_(bigFonts)
    {
    }

    [[nodiscard]] PreviewSkinRecord record()
    {
        record_.Producer.set(telephone_.maker);
        record_.Model.set(telephone_.model);
        record_.Variant.set(telephone_.variant);
        setScreen();
        setAddress();
        setKeys();
        return record_;
    }

private:
    void set(PreviewPart part, ItemLook look)
    {
        record_.items.at(static_cast<std::size_t>(part)) = scaled(std::move(look));
    }

    SkinItem scaled(ItemLook look) const
    {
        if (bigFonts_) look.points = std::int16_t(std::lround(look.points * 0.8));
        return skinItem(look);
    }

    void setScreen()
    {
        const auto& t = telephone_.tokens;
        const auto& screen = telephone_.screen;
        const auto caption = [&](int top) {
            return placed(telephone_, {screen.left, top, screen.width, kCaptionHeight});
        };
        set(PreviewPart::Picture,
            {telephone_.picture, t.bodyDark, t.engraving, fileOf(telephone_, "")});
        set(PreviewPart::CardCaption, {caption(screen.top), t.displayInk, t.display, "", 9});
        set(PreviewPart::TaskCaption,
            {caption(screen.top + screen.height - kCaptionHeight), t.display, t.displayInk, "", 9});
        for (const auto part : {PreviewPart::Display, PreviewPart::DisplayDefault})
            set(part, {placed(telephone_, displayOf(telephone_)), t.display, t.displayInk, "", 9});
    }

    /// The line above the telephone: label, field, button.
    void setAddress()
    {
        const int width = std::max(kPreviewWidth, telephone_.picture.width + 40);
        constexpr StageTokens kStage;
        const auto look = [](Box box, std::uint32_t back, std::uint32_t fore) {
            return ItemLook{box, back, fore, "", ItemLook::kControlPoints};
        };
        set(PreviewPart::AddressLabel, look({20, 16, 64, 36}, kStage.ground, kStage.ink));
        set(PreviewPart::Address, look({88, 16, width - 152, 36}, kStage.field, kStage.fieldInk));
        set(PreviewPart::SearchButton,
            look({width - 56, 16, 36, 36}, kStage.field, kStage.fieldInk));
        record_.items.at(static_cast<std::size_t>(PreviewPart::SearchButton))
            .Picture.set("papier-icon-folder-open.png");
    }

    void setKeys()
    {
        const auto& t = telephone_.tokens;
        for (std::size_t i = 0; i < std::size(kPreviewKeys); ++i) {
            const Box box = placed(telephone_, telephone_.keys[i].box);
            record_.buttons.at(i).clickArea = scaled({box, t.key, t.keyInk, ""});
            record_.buttons.at(i).picture = scaled({grown(box, kKeyGlow), t.lit, t.litInk,
                fileOf(telephone_, "-key-" + std::to_string(i))});
        }
    }

    const Telephone& telephone_;
    bool bigFonts_;
    PreviewSkinRecord record_;
};

std::string sizeTag(std::string_view name, int width, int height)
{
    return "<" + std::string(name) + " Height=" + std::to_string(height)
        + " Width=" + std::to_string(width) + ">\r\n";
}

} // namespace

std::span<const Telephone> telephones()
{
    return kTelephones;
}

PreviewSkinRecord telephoneRecord(std::size_t index, bool bigFonts)
{
    auto record = RecordMaker(kTelephones[index], bigFonts).record();
    if (index == 0) record.Selected = SkinHead::kSelected;
    record.LastValue = static_cast<std::int16_t>(index);
    return record;
}

std::string userDevicesText()
{
    std::string text;
    for (const auto& telephone : kTelephones) {
        const Box display = displayOf(telephone);
        // A blank would end the value.
        const auto name = std::string(telephone.model) + "-" + std::string(telephone.variant);
        text += "<Geraet Name=" + name + ">\r\n<Representation Producer="
            + std::string(telephone.maker) + " Group=" + std::string(telephone.model) + ">\r\n"
            + sizeTag("Min", telephone.minWidth, telephone.minHeight)
            + sizeTag("Max", telephone.maxWidth, telephone.maxHeight)
            + sizeTag("Default", display.width, display.height);
    }
    return text;
}

} // namespace quillmere
