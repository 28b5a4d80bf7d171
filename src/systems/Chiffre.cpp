// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Chiffre.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/provider.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>

namespace norvane {

namespace {

constexpr std::size_t Bloc = 8;
constexpr unsigned char Brouillage = 0x5A;

/// The two texts of the cipher, scrambled: whoever exchanges *.syr files must share them.
constexpr std::array<unsigned char, 40> CleBrouillee = {
    0x14, 0x35, 0x28, 0x2c, 0x3b, 0x34, 0x3f, 0x77, 0x09, 0x23, 0x29, 0x2e, 0x3f, 0x37,
    0x3f, 0x29, 0x77, 0x28, 0x3f, 0x3e, 0x2f, 0x39, 0x2e, 0x3f, 0x2f, 0x28, 0x29, 0x77,
    0x68, 0x6a, 0x68, 0x6c, 0x77, 0x6e, 0x63, 0x77, 0x6f, 0x77, 0x6b, 0x6a};
constexpr std::array<unsigned char, 24> DepartBrouille = {
    0x1d, 0x28, 0x33, 0x36, 0x36, 0x3f, 0x29, 0x7a, 0x3b, 0x7a, 0x39, 0x33,
    0x34, 0x2b, 0x7a, 0x34, 0x2f, 0x37, 0x3f, 0x28, 0x35, 0x29, 0x7a, 0x7b};

/// A text put together for the time of one use.
template <std::size_t N>
class Secret {
 public:
    explicit Secret(const std::array<unsigned char, N>& brouille) {
        std::ranges::transform(brouille, octets.begin(), [](unsigned char c) {
            return static_cast<unsigned char>(c ^ Brouillage);
        });
    }
    ~Secret() { OPENSSL_cleanse(octets.data(), N); }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    Secret(Secret&&) = delete;
    Secret& operator=(Secret&&) = delete;

    std::array<unsigned char, N> octets{};
};

struct Liberation {
    void operator()(OSSL_LIB_CTX* c) const { OSSL_LIB_CTX_free(c); }
    void operator()(OSSL_PROVIDER* p) const { OSSL_PROVIDER_unload(p); }
    void operator()(EVP_CIPHER* c) const { EVP_CIPHER_free(c); }
    void operator()(EVP_CIPHER_CTX* c) const { EVP_CIPHER_CTX_free(c); }
};
template <typename T>
using Tenu = std::unique_ptr<T, Liberation>;

/// Blowfish of OpenSSL, fetched once for the life of the program.
class Algorithme {
 public:
    Algorithme()
        : bibliotheque_(OSSL_LIB_CTX_new()),
          anciens_(OSSL_PROVIDER_load(bibliotheque_.get(), "legacy")),
          algorithme_(EVP_CIPHER_fetch(bibliotheque_.get(), "BF-ECB", nullptr)) {}
    const EVP_CIPHER* get() const { return algorithme_.get(); }

 private:
    Tenu<OSSL_LIB_CTX> bibliotheque_;
    Tenu<OSSL_PROVIDER> anciens_;
    Tenu<EVP_CIPHER> algorithme_;
};

enum class Sens { Dechiffrer = 0, Chiffrer = 1 };

bool Preparer(EVP_CIPHER_CTX* contexte, const EVP_CIPHER* algorithme, Sens sens) {
    const Secret cle(CleBrouillee);
    const Secret depart(DepartBrouille);
    // Blocks that stand each on their own take no start block: it is made and given all the same,
    // as every program does that exchanges these files.
    std::array<unsigned char, Bloc> bloc{};
    for (std::size_t i = 0; i < depart.octets.size(); ++i) bloc[i % Bloc] ^= depart.octets[i];
    const int chiffrer = static_cast<int>(sens);
    return EVP_CipherInit_ex(contexte, algorithme, nullptr, nullptr, nullptr, chiffrer) == 1 &&
           EVP_CIPHER_CTX_set_key_length(contexte, static_cast<int>(cle.octets.size())) == 1 &&
           EVP_CipherInit_ex(contexte, nullptr, nullptr, cle.octets.data(), bloc.data(),
                             chiffrer) == 1;
}

Resultat<std::string> Passer(std::string_view entree, Sens sens, const Erreur& echec) {
    static const Algorithme algorithme;
    if (algorithme.get() == nullptr)
        return Erreur{
            "Cette machine n'a pas le chiffrement Blowfish que les fichiers *.syr demandent : "
            "installez les anciens algorithmes d'OpenSSL (fournisseur « legacy »)."};
    const Tenu<EVP_CIPHER_CTX> contexte(EVP_CIPHER_CTX_new());
    if (!contexte || !Preparer(contexte.get(), algorithme.get(), sens) ||
        entree.size() > std::numeric_limits<int>::max() - Bloc)
        return echec;
    std::string sortie(entree.size() + Bloc, '\0');
    auto* octets = reinterpret_cast<unsigned char*>(sortie.data());
    int corps = 0;
    int fin = 0;
    if (EVP_CipherUpdate(contexte.get(), octets, &corps,
                         reinterpret_cast<const unsigned char*>(entree.data()),
                         static_cast<int>(entree.size())) != 1 ||
        EVP_CipherFinal_ex(contexte.get(), octets + corps, &fin) != 1)
        return echec;
    sortie.resize(static_cast<std::size_t>(corps) + static_cast<std::size_t>(fin));
    return sortie;
}

}  // namespace

Resultat<std::string> Chiffrer(std::string_view clair) {
    return Passer(clair, Sens::Chiffrer, {"Le système n'a pas pu être chiffré."});
}

Resultat<std::string> Dechiffrer(std::string_view chiffre) {
    return Passer(chiffre, Sens::Dechiffrer,
                  {"le contenu est abîmé, ou chiffré avec une autre clé."});
}

}  // namespace norvane
