#include "model/ItemFactory.h"

#include "model/ContainerItems.h"
#include "model/GunboatItem.h"
#include "model/LeaderItem.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

std::unique_ptr<COobItem> CreateItem(std::uint8_t typeCode) {
    switch (typeCode) {
        case TYPE_UNIT:
            return std::make_unique<CUnitItem>();
        case TYPE_LEADER:
            return std::make_unique<CLeaderItem>();
        case TYPE_SUPPLY:
            return std::make_unique<CSupplyItem>();
        case TYPE_STRUCTURE:
            return std::make_unique<CStructureItem>();
        case TYPE_ARMY:
            return std::make_unique<CArmyItem>();
        case TYPE_DEPOT:
            return std::make_unique<CDepotItem>();
        case TYPE_GUNBOAT:
            return std::make_unique<CGunboatItem>();
        default:
            return nullptr;
    }
}
