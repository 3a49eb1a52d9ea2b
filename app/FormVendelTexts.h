// SPDX-License-Identifier: MIT
#pragma once

#include "common/Messages.h"
#include "common/Texts.h"

/// The catalogue's entries that the sales screen shows, by what they say.
namespace FormVendelTexts {
inline constexpr Texts texts{"FormVendelMessages"};
inline const auto& datePattern = Messages::Messages98;
inline const auto& decimalSeparator = Messages::Messages101;
inline const auto& addTip = Messages::Messages65;
inline const auto& removeTip = Messages::Messages66;
inline const auto& menuIsEmpty = Messages::Messages25;
inline const auto& menuHasDuplicates = Messages::Messages26;
inline const auto& nothingToShow = Messages::Messages1;
inline const auto& nothingToClear = Messages::Messages0;
inline const auto& nothingToTotal = Messages::Messages5;
inline const auto& noAmount = Messages::Messages12;
inline const auto& noValidAmount = Messages::Messages13;
inline const auto& nothingToPay = Messages::Messages6;
inline const auto& noPrinter = Messages::Messages63;
inline const auto& saleNotRecorded = Messages::Messages172;
inline const auto& menuLabels = Messages::Messages97;
inline const auto& ticketLabels = Messages::Messages99;
inline const auto& sumLabel = Messages::Messages2;
inline const auto& taxLabel = Messages::Messages3;
inline const auto& grandTotalLabel = Messages::Messages4;
} // namespace FormVendelTexts
