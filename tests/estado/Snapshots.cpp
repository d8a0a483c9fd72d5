#include "estado/Snapshots.hpp"

#include <algorithm>

std::vector<SnapshotMember> fullProfile() {
    return {{"id", R"("p1")"}, {"nombre", R"("Voz")"}, {"curva", "[-3,0.5]"}, {"puesto", "true"}};
}

std::vector<SnapshotMember> fullApplication() {
    return {{"id", R"("com.ejemplo.musica")"},
            {"nombre", R"("Música")"},
            {"nivel", "0.45"},
            {"silenciada", "false"},
            {"suena", "true"}};
}

std::vector<SnapshotMember> fullSnapshot() {
    return {{"perfil", R"("Música")"},
            {"razon", R"("suena jazz")"},
            {"curva", "[0,1.5,-2.25]"},
            {"prendido", "true"},
            {"automatico", "false"},
            {"salida", R"("Audífonos")"},
            {"salidaMedida", "true"},
            {"cuartoAhora", "2.4"},
            {"cuartoAntes", "6.3"},
            {"medidoHace", R"("hace 3 días")"},
            {"salidasSinMedir", "2"},
            {"perfiles", "[" + object(fullProfile()) + "]"},
            {"apps", "[" + object(fullApplication()) + "]"},
            {"dejaCambiar", "true"},
            {"acento", "6087834"},
            {"idioma", R"("es")"},
            {"cuando", "785000000.125"}};
}

std::string object(const std::vector<SnapshotMember>& members) {
    std::string text;
    for (const SnapshotMember& member : members) {
        text += (text.empty() ? "\"" : ",\"") + member.key + "\":" + member.value;
    }
    return "{" + text + "}";
}

std::vector<SnapshotMember> replacing(std::vector<SnapshotMember> members,
                                      const std::string& key,
                                      const std::string& value) {
    std::ranges::find(members, key, &SnapshotMember::key)->value = value;
    return members;
}

std::vector<SnapshotMember> without(std::vector<SnapshotMember> members, const std::string& key) {
    std::erase_if(members, [&](const SnapshotMember& member) { return member.key == key; });
    return members;
}
