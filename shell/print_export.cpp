#include "shell/print_export.h"

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/printer.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/save_text.h"
#include "shell/service_set.h"

namespace quenloft {
namespace {

constexpr char kTextFilter[] = "Text(*.txt)|*.txt|All files(*.*)|*.*";

void PrintExport(ChildWindow& child, const ServiceSet& services) {
    if (!services.printer.ChoosePrinter()) {
        return;
    }
    const std::string failure = services.printer.PrintText(child.Export());
    if (!failure.empty()) {
        services.dialogs.ShowMessage(failure, MessageIcon::Warning);
    }
}

void PrintOwnContent(ChildWindow& child, const ServiceSet& /*services*/) { child.PrintContent(); }

void SaveExport(ChildWindow& child, const ServiceSet& services) {
    const auto path = services.dialogs.ChooseFileToSave(
        kTextFilter, services.files.NativePath(services.files.CurrentDirectory()));
    if (!path) {
        return;
    }
    if (path->empty()) {
        services.dialogs.ShowMessage("No filename given!", MessageIcon::Warning);
        return;
    }
    SaveNewText(services, *path, child.Export());
}

void RefuseExport(ChildWindow& /*child*/, const ServiceSet& services) {
    services.dialogs.ShowMessage(
        "Exporting this data would likely lose data! No export implemented.",
        MessageIcon::Information);
}

struct Route {
    const char* formName;
    void (*print)(ChildWindow&, const ServiceSet&);
    void (*save)(ChildWindow&, const ServiceSet&);
};

constexpr Route kRoutes[] = {
    {form::kEdit, PrintExport, SaveExport},
    {form::kEditTable, PrintExport, SaveExport},
    {form::kScript, PrintExport, SaveExport},
    {form::kLists, PrintExport, SaveExport},
    {form::kSingleList, PrintExport, SaveExport},
    {form::kProbability, PrintExport, SaveExport},
    {form::kShadowrunProbability, PrintExport, SaveExport},
    {form::kDice, PrintExport, SaveExport},
    {form::kExplorer, PrintExport, SaveExport},
    {form::kAuthor, PrintOwnContent, RefuseExport},
};

const Route* RouteOf(const ChildWindow* child) {
    for (const Route& route : kRoutes) {
        if (child && child->FormName() == route.formName) {
            return &route;
        }
    }
    return nullptr;
}

}  // namespace

void PrintWindow(ChildWindow* child, const ServiceSet& services) {
    if (const Route* route = RouteOf(child)) {
        route->print(*child, services);
    }
}

void ExportWindow(ChildWindow* child, const ServiceSet& services) {
    if (const Route* route = RouteOf(child)) {
        route->save(*child, services);
    }
}

}  // namespace quenloft
