// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/frm_image.h"

#include "document/images.h"
#include "document/platform/files.h"
#include "document/platform/paths.h"
#include "document/platform/word_ids.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "editor/elements/typed_values.h"
#include "forms/text.h"
#include "imageconv/wbmp.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

QString typed(std::string_view markup)
{
    return QString::fromStdU16String(typedFrom(markup));
}

FileQuestion wbmpQuestion(const Session& session)
{
    FileQuestion question;
    question.title = shownText(session.words.GetWord(word::kChoosePictureTitle));
    question.directory = shownPath(session.document.deck.front().deckDir);
    question.filter = shownText(session.words.GetWord(word::kWbmpFilter)) + "(*.wbmp)";
    question.suffix = ".wbmp";
    return question;
}

int numberOr(const std::string& text, int otherwise)
{
    return fieldNumber(text, {1, kMaxPictureSidePx}).value_or(otherwise);
}

} // namespace

frmImage::frmImage(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmImage", parent)
{
    setWindowTitle("Bild");
    lblImage->setText("&Bild:");
    btnSearchImage->setText("&Durchsuchen ...");
    lblCaption->setText("Ersat&ztext:");
    chkCommitAll->setText("&Erweiterte Angaben übernehmen");
    lblHeight->setText("&Höhe:");
    lblWidth->setText("Brei&te:");
    lblAlign->setText("Anordne&n:");
    lblDescExtendedInfo->setText("(Bezieht sich auf das Ausrichten von Bild und Text, wenn sich "
                                 "diese in einer Zeile befinden.)");
    btnHelp->setText("Hil&fe");
    btnNew->setText("&OK");
    btnDelete->setText("&Löschen");
    lblImage->setBuddy(txtImage);
    lblCaption->setBuddy(txtCaption);
    lblHeight->setBuddy(txtHeight);
    lblWidth->setBuddy(txtWidth);
    lblAlign->setBuddy(cboAlign);
    layOut();
    wire();
}

void frmImage::layOut()
{
    auto* top = new QGridLayout;
    top->addWidget(lblImage, 0, 0);
    top->addWidget(txtImage, 0, 1);
    top->addWidget(btnSearchImage, 0, 2);
    top->addWidget(lblCaption, 1, 0);
    top->addWidget(txtCaption, 1, 1, 1, 2);
    auto* grid = new QGridLayout(objFrame);
    grid->addWidget(lblHeight, 0, 0);
    grid->addWidget(txtHeight, 0, 1);
    grid->addWidget(lblWidth, 0, 2);
    grid->addWidget(txtWidth, 0, 3);
    grid->addWidget(lblAlign, 1, 0);
    grid->addWidget(cboAlign, 1, 1);
    grid->addWidget(lblDescExtendedInfo, 2, 0, 1, 4);
    lblDescExtendedInfo->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addWidget(chkCommitAll, 0, Qt::AlignLeft);
    rows->addWidget(objFrame);
    rows->addStretch();
    rows->addLayout(buttonRow(btnNew, btnDelete));
    btnSearchImage->setAutoDefault(false);
    txtImage->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
}

void frmImage::wire()
{
    onClick(btnNew, &frmImage::btnNew_Click);
    onClick(btnDelete, &frmImage::btnDelete_Click);
    onClick(btnSearchImage, &frmImage::btnSearchImage_Click);
    connect(chkCommitAll, &QCheckBox::clicked, this,
        [this] { trap([this] { chkCommitAll_Click(); }); });
    connect(txtImage, &QLineEdit::editingFinished, this, [this] {
        if (txtImage->isModified()) showSize(chosenPath());
        txtImage->setModified(false);
    });
}

void frmImage::SetInitializations(bool newElement, const Hit& hit)
{
    loadTexts();
    if (cboAlign->count() == 0) cboAlign->addItems({"Oben", "Mittig", "Unten"});
    mImageFound = hit.Inside;
    mImagePos = searchPosition(hit);
    NewElement = newElement || !mImageFound;
    setWindowTitle(NewElement ? formText(text_variant::kNewText, "Bild einfügen")
                              : formText(text_variant::kEditText, "Bild bearbeiten"));
    btnDelete->setVisible(!NewElement);
    for (auto* field : {txtImage, txtHeight, txtWidth})
        field->clear();
    txtCaption->setText(word(word::kImageText));
    chkCommitAll->setChecked(false);
    enableLayout();
    if (!NewElement) showFound();
    txtImage->setFocus();
}

void frmImage::showFound()
{
    const auto text = designText();
    auto image = GetImage(text, mImagePos);
    if (!image) return;
    if (!image->hasLayout) image = löschen_GetImage(text, mImagePos);
    const auto* entry = entryShownAs(image->source);
    foundPath_ = entry == nullptr ? image->source : entry->sourceDir + entry->sourceFile;
    txtImage->setText(shownName(foundPath_));
    txtCaption->setText(typed(image->caption));
    chkCommitAll->setChecked(image->hasLayout);
    cboAlign->setCurrentIndex(imageAlignIndex(image->align));
    enableLayout();
    if (entry == nullptr) return showSize(foundPath_);
    const int height = numberOr(image->height, entry->pictureHeightPx);
    const int width = numberOr(image->width, entry->pictureWidthPx);
    height_->setLimits({1, std::max(height, entry->pictureHeightPx)});
    width_->setLimits({1, std::max(width, entry->pictureWidthPx)});
    height_->setFallback(entry->pictureHeightPx);
    width_->setFallback(entry->pictureWidthPx);
    height_->setValue(height);
    width_->setValue(width);
}

/// Shows a picture's own size, which is also the limit; none for a picture that cannot be read.
void frmImage::showSize(const std::string& path)
{
    PictureSize size;
    try {
        size = readWbmpSize(path, session().document.output);
    } catch (const Failure&) {
        txtHeight->clear();
        txtWidth->clear();
        return;
    }
    const int height = static_cast<int>(size.heightPx);
    const int width = static_cast<int>(size.widthPx);
    height_->setLimits({1, std::max(height, 1)});
    width_->setLimits({1, std::max(width, 1)});
    height_->setFallback(height);
    width_->setFallback(width);
    height_->setValue(height);
    width_->setValue(width);
}

void frmImage::setImage(const std::string& path)
{
    txtImage->setText(shownName(path));
    showSize(path);
    txtCaption->selectAll();
    txtCaption->setFocus();
}

void frmImage::chkCommitAll_Click()
{
    const bool isNoted = chkCommitAll->isChecked() && isYes(session().settings, "ShowImageMessage");
    if (isNoted) static_cast<void>(session().messages.showNote(Note::Image));
    enableLayout();
}

void frmImage::enableLayout()
{
    for (QWidget* control : std::initializer_list<QWidget*>{
             lblHeight, txtHeight, lblWidth, txtWidth, lblAlign, cboAlign, lblDescExtendedInfo})
        control->setEnabled(chkCommitAll->isChecked());
}

void frmImage::btnSearchImage_Click()
{
    const auto path = session().fileDialogs.openFile(wbmpQuestion(session()));
    if (!path) return;
    txtImage->setText(shownName(corePath(*path)));
    showSize(corePath(*path));
}

std::string frmImage::chosenPath() const
{
    auto path = corePath(txtImage->text().trimmed());
    if (path.empty() || path.starts_with('/')) return path;
    return session().document.deck.front().deckDir + path;
}

/// Pictures of the deck's directory by their name in it.
QString frmImage::shownName(const std::string& path) const
{
    const auto& deckDir = session().document.deck.front().deckDir;
    return shownPath(path.starts_with(deckDir) ? path.substr(deckDir.size()) : path);
}

bool frmImage::isThere(const std::string& path) const
{
    return session().files.fileExists(path) || (!NewElement && path == foundPath_);
}

/// The chosen picture's path in the deck's directory, where it is copied from elsewhere; nullopt
/// where another picture of its name is to stay.
std::optional<std::string> frmImage::pathInProject()
{
    const auto path = chosenPath();
    const auto& deckDir = session().document.deck.front().deckDir;
    if (path.starts_with(deckDir) || path == foundPath_) return path;
    const auto name = SplitPath(path).name;
    const auto copy = deckDir + name;
    const auto bytes = readFile(path);
    if (session().files.fileExists(copy)) {
        if (readFile(copy) == bytes) return copy;
        const std::array gaps{coreText(shownPath(name))};
        if (!session().messages.ask(word::kReplacePicture, gaps, MessageIcon::Question))
            return std::nullopt;
    }
    replaceFile(copy, bytes);
    return copy;
}

ImageEntry* frmImage::entryShownAs(const std::string& displayPath) const
{
    auto& images = session().document.deck.at(area()).images;
    const auto found = std::ranges::find_if(images, [&](const ImageEntry& entry) {
        return !entry.displayFile.empty()
            && equalIgnoringCase(entry.displayDir + entry.displayFile, displayPath);
    });
    return found == images.end() ? nullptr : &*found;
}

/// The entry of the picture in the area's list, where it is put if need be.
ImageEntry& frmImage::AddImageToList(const std::string& path, const std::string& caption)
{
    const auto display = RegisterImage(session().document, area(), path, caption);
    auto* entry = entryShownAs(display);
    if (entry == nullptr) throw InvalidArgument();
    return *entry;
}

void frmImage::SetImage(const std::string& path)
{
    ImageSettings wanted;
    wanted.caption = valueMarkup(txtCaption->text().toStdU16String());
    wanted.hasLayout = chkCommitAll->isChecked();
    wanted.align = imageAlign(cboAlign->currentIndex());
    if (wanted.hasLayout) {
        const auto height = height_->checkedValue();
        if (!height) return;
        const auto width = width_->checkedValue();
        if (!width) return;
        wanted.height = std::to_string(*height);
        wanted.width = std::to_string(*width);
    }
    auto& record = session().document.deck.at(area());
    const auto images = record.images;
    try {
        write(path, wanted);
    } catch (...) {
        record.images = images; // the text is as it was, and so is the list
        record.imageIndex = {};
        throw;
    }
}

void frmImage::write(const std::string& path, ImageSettings wanted)
{
    auto& entry = AddImageToList(path, wanted.caption);
    wanted.source = entry.displayDir + entry.displayFile;
    const auto text = designText();
    const auto edit = NewElement ? quillmere::SetImage(text, mImagePos, wanted, rules())
                                 : ReplaceImage(text, mImagePos, wanted, rules());
    entry.alignment = wanted.align;
    entry.hasLayout = wanted.hasLayout;
    entry.heightPx = wanted.hasLayout ? std::stoi(wanted.height) : entry.pictureHeightPx;
    entry.widthPx = wanted.hasLayout ? std::stoi(wanted.width) : entry.pictureWidthPx;
    auto& record = session().document.deck.at(area());
    record.imageCursor = static_cast<std::int16_t>(&entry - record.images.data());
    session().lastImage = entry;
    applyToFound(edit, NewElement || GetImage(text, mImagePos).has_value());
}

void frmImage::btnNew_Click()
{
    const auto path = chosenPath();
    if (path.empty() || !lowerCase(path).ends_with(".wbmp"))
        return complain(word::kNoWbmpPicture, *txtImage);
    if (!isThere(path))
        return complain(word::kPictureMissing, *txtImage, coreText(txtImage->text().trimmed()));
    if (const auto taken = pathInProject()) SetImage(*taken);
}

void frmImage::btnDelete_Click()
{
    if (confirms(word::kDeleteImage)) applyDeletion(DeleteImage(designText(), mImagePos, rules()));
}

void InsertImageFile(Session& session, DesignSurface& surface, const std::string& path,
    const Hit& hit, QWidget* parent)
{
    if (!session.files.fileExists(path)) {
        const std::array gaps{coreText(shownPath(path))};
        return session.messages.show(word::kClipartMissing, gaps, MessageIcon::Critical);
    }
    frmImage form(session, surface, parent);
    form.SetInitializations(true, hit);
    form.setImage(path);
    form.showModally();
}

void ChooseWbmpDialog(Session& session, DesignSurface& surface, const Hit& hit, QWidget* parent)
{
    const auto path = session.fileDialogs.openFile(wbmpQuestion(session));
    if (path) InsertImageFile(session, surface, corePath(*path), hit, parent);
}

} // namespace quillmere
