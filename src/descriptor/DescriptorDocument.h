// The application descriptor as a Xerces DOM. Accessors work on the DOM; only `Save` writes the
// file.
//
// Results are small integers: 0 for done, -1 for no parser, 1 for no document, 2 for no root
// element, and what each operation tells beyond that. No accessor shows a message.
//
// Names are in the local code page. Values are UTF-16, or, where a parameter is a `std::string`,
// the local code page too, which loses what it lacks.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "descriptor/FileTypeRecord.h"
#include "descriptor/XercesForward.h"

namespace qutav {

/// What `Load` gives.
enum LoadResult : int {
  kLoadFailed = -1,      ///< any exception while opening or parsing
  kLoaded = 0,           ///< parsed, `application` found, namespace usable
  kNoApplication = 1,    ///< no element `application`
  kNotAnElement = 2,     ///< the first `application` is no element
  kNoNamespaceText = 3,  ///< the `xmlns` value is null
  kMilestoneFormat = 5,  ///< an early format that must be replaced
};

class DescriptorDocument {
 public:
  DescriptorDocument();
  /// Leaves the parser to `Close`, as long-lived documents are closed by their users.
  ~DescriptorDocument();
  DescriptorDocument(const DescriptorDocument&) = delete;
  DescriptorDocument& operator=(const DescriptorDocument&) = delete;

  // --- The document as a whole -----------------------------------------------------------------

  /// Starts Xerces and makes a parser (`XMLPlatformUtils::Initialize`, `XercesDOMParser`): 0 done,
  /// 1 the start failed, 2 the parser could not be made.
  int InitParser();
  bool IsParserReady() const { return parser_ != nullptr; }
  /// Parses any XML file: 0, or -1 for any failure.
  int ParseFile(const std::u16string& path);
  /// Parses a descriptor. Replaces the DOM also when the result is not 0.
  int Load(const std::u16string& path);
  /// Whether the latest successful load was of exactly this path.
  bool IsLoadedFrom(const std::u16string& path) const;
  /// Writes the DOM back, laid out, in the document's own encoding. 0, or -1 without a parser and
  /// when the file cannot be written; the old file is then untouched. So it is by a value that no
  /// XML file can hold, which throws `std::runtime_error`.
  int Save(const std::u16string& path);
  /// Frees the parser and the DOM with it. Always 0.
  int Close();
  /// The DOM of the latest parse, for readers of other files than descriptors; null without one.
  /// The next parse and `Close` destroy it.
  xercesc::DOMDocument* Document() const;

  // --- Reading fields --------------------------------------------------------------------------

  /// Text of the first element of a tag, trimmed: 0; -1; 1 no such element; 3 no text.
  int GetText(const char* tag, std::u16string& out) const;
  /// The same, not trimmed: 0; -1; 1; 2 no text.
  int GetTextNarrow(const char* tag, std::string& out) const;
  /// Text of the first descendant of an element: 0; -1; 1 element null; 2 no such descendant; 3
  /// null or empty.
  int GetChildText(const xercesc::DOMElement* element, const char* tag, std::u16string& out) const;
  int GetChildTextNarrow(const xercesc::DOMElement* element, const char* tag,
                         std::string& out) const;
  /// An attribute of the first element of a tag: 0, also for a missing attribute; -1; 1 no such
  /// element; 2 not an element; 3 no value.
  int GetAttribute(const char* tag, const char* attribute, std::string& out) const;
  /// Whether the first element of the parent tag has a descendant of the child tag.
  bool HasChild(const char* parentTag, const char* childTag) const;
  /// All elements of a tag, at any depth and in document order; none without a document.
  std::vector<xercesc::DOMElement*> ElementsOfTag(const char* tag) const;

  // --- Writing fields --------------------------------------------------------------------------

  /// Text of the first element of a tag, appended to the root when there is none: 0; -1; 1; 2 also
  /// when the first item is no element.
  int SetText(const char* tag, const std::u16string& value);
  /// Text of a descendant of the first element of the parent tag, appended to it when there is
  /// none: 0; -1; 1; 2; 3 no parent.
  int SetChildText(const char* parentTag, const char* childTag, const std::u16string& value);
  /// Text of a child of the element that lies under a named parent. The element is created, and 0
  /// given, only when its tag occurs elsewhere in the document; otherwise 3 and no change.
  int SetGrandchildText(const char* parentName, const char* elementTag, const char* childTag,
                        const std::u16string& value);
  /// A new child with that text, even beside a like one: 0; -1; 1; 2; 3 no parent.
  int AppendChild(const char* parentTag, const char* childTag, const std::u16string& value);
  /// Removes the first descendant: 0 also when there is none; -1; 1; 2; 3 no parent. A descendant
  /// that is no direct child throws `std::runtime_error`.
  int RemoveChild(const char* parentTag, const char* childTag);
  int RemoveGrandchild(const char* parentName, const char* elementTag, const char* childTag);
  /// Empties the first element of a tag: 0; -1; 1 no such element; 2 not an element.
  int ClearText(const char* tag);
  /// 0; -1; 1 no such element; 2 not an element.
  int SetAttribute(const char* tag, const char* attribute, const std::string& value);
  /// Turns `version` into `versionNumber`; the text is that of `CurrentDescriptor`.
  void MigrateVersionElement();

  // --- Icons and file types --------------------------------------------------------------------

  /// The path of an application icon such as "image48x48": 0; -1; 1; 2; 3 no such image.
  int GetApplicationIcon(const char* name, std::u16string& out) const;
  /// See `RemoveApplicationIcons`.
  void RemoveIconsUnderApplication();
  /// Appends the paths of all images to package, as the file has them: 0; -1; 1; 2; 3 no
  /// `fileTypes`; 4 no `fileType`. The icons are in the list also with 3 and 4.
  int CollectPackagedImages(std::vector<std::u16string>& list) const;
  /// All file types as ";Name(extension)": 0; -1; 1; 2; 3; 4.
  int GetFileTypeList(std::u16string& out) const;
  /// The first file type of that name; missing children leave their fields alone: 0; -1; 1; 2; 3;
  /// 4; 5 no type of that name.
  int GetFileType(const std::u16string& name, FileTypeRecord& record) const;

  // --- Provisioning profiles -------------------------------------------------------------------

  /// The identifier that a provisioning profile's property list covers, without the team in front
  /// of it; nothing when it tells none. One node of white space stands between a key and its value.
  std::optional<std::u16string> ReadApplicationIdentifier() const;

  // --- Android manifest additions --------------------------------------------------------------

  /// Whether the internet permission's name stands anywhere in the text below `android`.
  bool HasInternetPermission() const;
  /// The permissions of the fragment without "android.permission.", in document order. Throws
  /// `std::out_of_range` for a name shorter than that prefix.
  std::vector<std::u16string> GetManifestPermissions() const;
  /// Replaces the whole fragment by these permissions; false without a document.
  bool SetManifestPermissions(const std::vector<std::u16string>& permissions);

 private:
  bool Parse(const std::u16string& path);
  /// The code for what is missing, 0 when parser, document and root are there.
  int CheckRoot() const;
  xercesc::DOMElement& Root() const;
  xercesc::DOMElement* NewElement(const char* tag, const std::u16string& text);
  int FindFileTypes(std::vector<xercesc::DOMNode*>& types) const;
  void CollectIconImages(const xercesc::DOMElement& icon, std::vector<std::u16string>& list) const;

  xercesc::XercesDOMParser* parser_ = nullptr;
  std::unique_ptr<xercesc::HandlerBase> errorHandler_;
  bool loaded_ = false;
  bool legacyNamespace_ = false;
  std::u16string path_;
};

/// The descriptor in work: settings pages, publish driver, on-device operations.
extern DescriptorDocument CurrentDescriptor;

/// The one of the short open, adjust, save, close sequences before a command.
extern DescriptorDocument LaunchDescriptor;

/// `SetChildText` on `CurrentDescriptor`: 1 when a name is empty or null or no parser is there,
/// else 0 whatever came of it.
int SetChildTextIfValid(const char* parentTag, const char* childTag, const std::u16string& value);

/// Removes the application's icons from `CurrentDescriptor`. In a file without white space between
/// them every second one stays.
void RemoveApplicationIcons();

}  // namespace qutav
