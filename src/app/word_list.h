#pragma once

#include "document/platform/word_ids.h"

// Every word that the program asks for, as a list.

namespace quillmere {

struct WordUse {
    int id = 0;
    int gaps = 0; ///< how many "<?>" its text has
};

// clang-format off
inline constexpr WordUse kWordIds[] = {
    {word::kReplaceByTemplate, 1}, {word::kNoTemplates, 0}, {word::kTemplateFolderCaption, 0},
    {word::kTemplateFolderInfo, 0}, {word::kTemplatesMissing, 0}, {word::kStartPageSkipped, 0},
    {word::kProjectFolderCaption, 0}, {word::kProjectFolderInfo, 0}, {word::kBadDeckName, 0},
    {word::kNameStartPage, 0}, {word::kReplaceByNewDeck, 1}, {word::kBadNameSaveAs, 0},
    {word::kReplaceBySaveAs, 1}, {word::kMakeDirectory, 1}, {word::kCompleteUrl, 1},
    {word::kReplacePicture, 1}, {word::kPictureNotCopied, 1}, {word::kPreviewFileTitle, 0},
    {word::kSaveDeckAsTitle, 0}, {word::kOpenDeckTitle, 0}, {word::kNewDeckTitle, 0},
    {word::kChoosePictureTitle, 0}, {word::kChooseTargetTitle, 0}, {word::kAllFilesFilter, 0},
    {word::kWbmpFilter, 0}, {word::kWmlFilter, 0}, {word::kNewFolderCaption, 0},
    {word::kNewFolderInfo, 1}, {word::kNewFolderLabel, 0}, {word::kNewFolderName, 0},
    {word::kBadFolderName, 0}, {word::kDesktop, 0}, {word::kComputer, 0}, {word::kDeleteArea, 0},
    {word::kJumpLabel, 0}, {word::kBackLabel, 0}, {word::kImageText, 0}, {word::kDeleteImage, 0},
    {word::kLinkText, 0}, {word::kDeleteLink, 0}, {word::kOptionText, 0}, {word::kDeleteOption, 0},
    {word::kTableTitle, 0}, {word::kDeleteTable, 0}, {word::kSelectionCrossesOption, 0},
    {word::kSelectionCrossesSelect, 0}, {word::kSelectionCrossesTable, 0},
    {word::kClipartMissing, 1}, {word::kNumberRange, 2}, {word::kNoteCaption, 0},
    {word::kNoteOption, 0}, {word::kNoteImage, 0}, {word::kNotePlain, 0},
    {word::kNoteImageLayout, 0}, {word::kNoteSelectRepair, 0}, {word::kNoteSelectRepairYes, 0},
    {word::kAreaCaption, 0}, {word::kAreaCaptionEnd, 0}, {word::kNoDeckCaption, 0},
    {word::kTakeSource, 0}, {word::kSaveChanges, 0}, {word::kGraphicView, 0},
    {word::kNoTextSelected, 0}, {word::kResetSource, 0}, {word::kNoDeckOpen, 0},
    {word::kNotInSourceView, 0}, {word::kNothingToSave, 0}, {word::kNotIntoTable, 0},
    {word::kNoElementMarked, 0}, {word::kConverterFolderCaption, 0},
    {word::kConverterFolderInfo, 0}, {word::kSaveWbmpTitle, 0}, {word::kBadWbmpName, 0},
    {word::kSaveWbmpInProject, 2}, {word::kDeleteSkin, 0}, {word::kSizeLimits, 2},
    {word::kDeleteProfile, 0}, {word::kProfileName, 0}, {word::kSaveProfile, 0},
    {word::kNotConnected, 0}, {word::kUploadFolderCaption, 0}, {word::kUploadFolderInfo, 0},
    {word::kStartPageMissing, 0}, {word::kDisconnect, 0}, {word::kOperationEnded, 0},
    {word::kConnected, 0}, {word::kDialling, 0}, {word::kDialFailed, 0}, {word::kDialFailedLog, 0},
    {word::kOpeningInternet, 0}, {word::kInternetFailed, 0}, {word::kInternetFailedLog, 0},
    {word::kInternetOpen, 0}, {word::kConnecting, 0}, {word::kConnectFailedLog, 0},
    {word::kConnectFailed, 0}, {word::kServerConnected, 0}, {word::kDisconnecting, 0},
    {word::kInternetClosed, 0}, {word::kServerDisconnected, 0}, {word::kHangingUp, 0},
    {word::kCheckHungUp, 0}, {word::kHangUpAgain, 0}, {word::kHangUpEnded, 0},
    {word::kReplacingRemote, 1}, {word::kFileSent, 1}, {word::kFileNotSent, 1},
    {word::kRemoteDirectoryMade, 1}, {word::kRemoteDirectoryNotMade, 1}, {word::kDeleteRemote, 0},
    {word::kRemoteFileDeleted, 1}, {word::kRemoteFileNotDeleted, 1},
    {word::kRemoteDirectoryDeleted, 1}, {word::kRemoteDirectoryNotDeleted, 1},
    {word::kTreeFileDeleted, 1}, {word::kTreeEmptied, 1}, {word::kTreeDirectoryDeleted, 1},
    {word::kTreeDirectoryNotDeleted, 1}, {word::kNewRemoteCaption, 0}, {word::kNewRemoteInfo, 0},
    {word::kNewRemoteLabel, 0}, {word::kNewRemoteName, 0}, {word::kNewRemoteMade, 1},
    {word::kNewRemoteNotMade, 1}, {word::kAddFilesTitle, 0}, {word::kFileInProject, 1},
    {word::kReplaceInProject, 1}, {word::kAddedFolderCaption, 0}, {word::kAddedFolderInfo, 0},
    {word::kSendingFiles, 0}, {word::kDeletingFiles, 0}, {word::kMakingDirectory, 0},
    {word::kReadingDirectory, 0},
    {word::kNoRecovery, 1}, {word::kRecover, 3}, {word::kRecoverOverAltered, 3},
    {word::kRecoverRemoved, 3}, {word::kDiscardRecovered, 1}, {word::kAlteredOutside, 1},
    {word::kRemovedOutside, 1}, {word::kNotSaved, 0}, {word::kTextStays, 0},
    {word::kToolMissing, 1}, {word::kRecentDecks, 0}, {word::kCharacterCount, 1},
    {word::kNoHit, 0}, {word::kOneHit, 0}, {word::kHits, 1}, {word::kHitOf, 2},
    {word::kReplaced, 1}, {word::kBadNameHint, 0}, {word::kBadFolderHint, 0},
    {word::kIsOpenHint, 0}, {word::kNoHelp, 1}, {word::kLanguage, 0},
    {word::kOpenWithoutLoss, 1},
    {word::kAreaNeedsName, 0},
    {word::kAreaNameBadCharacter, 0},
    {word::kAreaNameBadBegin, 0},
    {word::kAreaNameTaken, 0},
    {word::kJumpNeedsCaption, 0},
    {word::kTargetMissing, 0},
    {word::kStillLeadsTo, 2},
    {word::kElementGone, 0},
    {word::kNoWbmpPicture, 0},
    {word::kPictureMissing, 1},
    {word::kLinkNeedsCaption, 0},
    {word::kCannotBecomeLink, 0},
    {word::kTakesNoFormat, 0},
    {word::kTakesNoAlignment, 0},
};
// clang-format on

} // namespace quillmere
