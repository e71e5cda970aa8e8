// The names of the child windows: what the menu, the routes of Print and Export and one window that
// opens another know a window by.
#pragma once

namespace quenloft::form {

inline constexpr char kLists[] = "frmLists";
inline constexpr char kSingleList[] = "frmListSingle";
inline constexpr char kScript[] = "frmScript";
inline constexpr char kDice[] = "frmDice";
inline constexpr char kProbability[] = "frmProbability";
inline constexpr char kShadowrunProbability[] = "frmShadowrunProbability";
inline constexpr char kDrovemark[] = "frmDrovemark";
inline constexpr char kEditTable[] = "frmEdit_Table";
inline constexpr char kEdit[] = "frmEdit";
inline constexpr char kEditReference[] = "frmEdit_Reference";
inline constexpr char kImportTable[] = "frmImportTable";
inline constexpr char kExplorer[] = "frmExplorer";
inline constexpr char kAuthor[] = "frmAuthor";
inline constexpr char kRecovery[] = "frmRecovery";
inline constexpr char kReadme[] = "frmReadme";
inline constexpr char kAbout[] = "frmAbout";

}  // namespace quenloft::form
