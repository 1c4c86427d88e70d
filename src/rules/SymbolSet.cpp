#include "rules/SymbolSet.h"

#include "rules/SymbolRules.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

using Type = RecordsetField::Type;

constexpr SetField<tSid> kSymbolSet[] = {
    setField<&tSid::SidId>("SidId", Type::Int16).writtenOnly(),
    setField<&tSid::GroupName>("GroupName", Type::Text, 50).writtenOnly(),
    setField<&tSid::GroupId>("GroupId", Type::Int16).writtenOnly(),
    setField<&tSid::Code>("Code", Type::Int16), // narrower than the record's, as the files have it
    setField<&tSid::ShortName>("ShortName", Type::Text, 50),
    setField<&tSid::FullName>("FullName", Type::Text, 300),
    setField<&tSid::Align>("Align", Type::Int16),
    setField<&tSid::Size_mm>("Size_mm", Type::Single),
    setField<&tSid::YwFact>("YwFact", Type::Single),
    setField<&tSid::XwFact>("XwFact", Type::Single),
    setField<&tSid::Facename>("Facename", Type::Text, 50),
    setField<&tSid::Weight>("Weight", Type::Int16),
    setField<&tSid::Italic>("Italic", Type::Boolean),
    setField<&tSid::Underline>("Underline", Type::Boolean),
    setField<&tSid::StrikeThrough>("StrikeThrough", Type::Boolean),
    setField<&tSid::CharSet>("CharSet", Type::Int32),
    setField<&tSid::PitchAndFamily>("PitchAndFamily", Type::Int16),
    setField<&tSid::ProtXmm>("ProtXmm", Type::Double),
    setField<&tSid::ProtYmm>("ProtYmm", Type::Double),
    setField<&tSid::ProtType>("ProtType", Type::Int16),
    setField<&tSid::MoveXmm>("MoveXmm", Type::Single),
    setField<&tSid::MoveYmm>("MoveYmm", Type::Single),
    setField<&tSid::DspZoom>("DspZoom", Type::Int16),
    setField<&tSid::LayId>("LayId", Type::Int32),
    setField<&tSid::Type>("Type", Type::Int16),
    setField<&tSid::Checked>("Checked", Type::Boolean).writtenOnly(),
};

/// What a value that a row lacks is read as: that of a new symbol, but no text.
tSid blankSymbol()
{
    tSid s = newSymbol({}, {});
    s.FullName.clear();
    return s;
}

} // namespace

std::variant<Recordset, SetFault> symbolSetOf(std::span<const tSid> symbols)
{
    return setOf<tSid>(symbols, kSymbolSet);
}

SetContent<tSid> symbolsIn(const Recordset &set)
{
    SetContent<tSid> content = contentOf<tSid>(set, kSymbolSet, blankSymbol());
    for (tSid &s : content.records)
        if (s.Type == kVectorFont) s.XwFact = 1;
    return content;
}

} // namespace QV_DOC_CONTROLS
