#include "host/BE/TextDocument.h"

#include "standalone/model/TextDocumentFormat.h"

namespace BE {

TextDocument::TextDocument() = default;

std::shared_ptr<const TextDocument> TextDocument::Create(const MF::BinaryData& data) {
  const std::shared_ptr<TextDocument> document(new TextDocument);
  if (const auto fonts = standalone::DecodeTextDocument(data)) {
    document->usedFonts.reserve(fonts->size());
    for (const std::string_view font : *fonts) document->usedFonts.emplace_back(font);
  }
  return document;
}

}  // namespace BE
