#!/bin/sh
# Makes the ten background textures beside it, with ImageMagick's convert alone. Each is a seamless square, light and
# of low contrast, so that dark text reads on it. They are made from random noise with fixed seeds, softened round the
# edges of the tile as if it went on ("-virtual-pixel tile"), and from patterns whose period divides the side.
# Run again, it makes the same pictures. The pictures are kept with the sources: the build does not need ImageMagick.
set -eu
cd "$(dirname "$0")"
cote=384
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT

# bruit NOM GRAINE OPTIONS...: grey noise, softened by the options, stretched to the whole range.
bruit()
{
    nom=$1 graine=$2
    shift 2
    convert -limit thread 1 -size ${cote}x$cote xc:gray50 -seed "$graine" +noise Random -colorspace Gray \
        -virtual-pixel tile "$@" -auto-level -depth 16 "$travail/$nom.miff"
}

# motif NOM FORMULE: grey values computed for each pixel, 0 black to 1 white.
motif()
{
    convert -size ${cote}x$cote xc:black -virtual-pixel tile -colorspace Gray -fx "$2" -depth 16 "$travail/$1.miff"
}

# meler NOM PART1 NOM1 PART2 NOM2 ...: a weighted sum of pictures, stretched to the whole range.
meler()
{
    sortie=$1
    shift
    convert -size ${cote}x$cote xc:black -depth 16 "$travail/$sortie.miff"
    while [ $# -gt 0 ]; do
        convert "$travail/$sortie.miff" \( "$travail/$2.miff" -evaluate multiply "$1" \) -compose plus -composite \
            -depth 16 "$travail/$sortie.miff"
        shift 2
    done
    convert "$travail/$sortie.miff" -auto-level -depth 16 "$travail/$sortie.miff"
}

# teindre NOM FICHIER SOMBRE CLAIR: black and white become two near colours.
teindre()
{
    convert "$travail/$1.miff" -colorspace sRGB -type TrueColor +level-colors "$3,$4" -strip \
        -sampling-factor 4:4:4 -quality 86 "$2.jpg"
}

deux_pi=6.283185307

# Paper: a fine tooth on faint clouds.
bruit grain 11 -blur 0x0.8
bruit nuages 12 -blur 0x26
meler papier .6 grain .4 nuages
teindre papier Papier '#E9E2D0' '#FCF9F0'

# Blotting paper: thick soft fibres, rosy white.
bruit duvet 21 -blur 0x2.4
bruit nuages 22 -blur 0x14
meler buvard .62 duvet .38 nuages
teindre buvard Buvard '#EBDCD6' '#FBF3EF'

# Parchment: large stains, pores.
bruit taches 31 -blur 0x38
bruit marbre 32 -blur 0x9
bruit pores 33 -blur 0x0.7
meler parchemin .5 taches .3 marbre .2 pores
teindre parchemin Parchemin '#E6D5AE' '#F8EED3'

# Cardboard: short fibres that lie one way, with grain between.
bruit fibres 41 -morphology Convolve 'Blur:0x7,0' -morphology Convolve 'Blur:0x0.7,90'
bruit grain 42 -blur 0x0.9
bruit nuages 43 -blur 0x20
meler carton .45 fibres .35 grain .2 nuages
teindre carton Carton '#D9C9AE' '#EFE3CF'

# Linen: threads of uneven weight, both ways.
bruit chaine 51 -morphology Convolve 'Blur:0x16,90' -morphology Convolve 'Blur:0x0.6,0'
bruit trame 52 -morphology Convolve 'Blur:0x16,0' -morphology Convolve 'Blur:0x0.6,90'
meler lin .5 chaine .5 trame
teindre lin Lin '#DFD9C8' '#F8F4EA'

# Canvas: a plain weave of six pixels, over and under, worn unevenly.
dessus="mod(floor(i/6)+floor(j/6),2)"
motif tissage "u=$dessus*abs(sin($deux_pi*i/12)) + (1-$dessus)*abs(sin($deux_pi*j/12))"
bruit usure 61 -blur 0x1.2
bruit nuages 62 -blur 0x22
meler toile .5 tissage .3 usure .2 nuages
teindre toile Toile '#DCE0DD' '#F6F7F3'

# Slate, light: veins that wave a little, on a cold ground.
bruit veines 71 -morphology Convolve 'Blur:0x22,0' -morphology Convolve 'Blur:0x1.1,90'
convert "$travail/veines.miff" -virtual-pixel tile -fx "p{i,j+4*sin($deux_pi*i/w)+3*sin($deux_pi*2*i/w+1)}" \
    "$travail/veines.miff"
bruit grain 72 -blur 0x0.8
bruit nuages 73 -blur 0x30
meler ardoise .5 veines .2 grain .3 nuages
teindre ardoise Ardoise '#CFD8DE' '#EDF1F3'

# Wood, light: long grain that winds a little.
bruit fil 81 -morphology Convolve 'Blur:0x90,90' -morphology Convolve 'Blur:0x1.6,0'
convert "$travail/fil.miff" -virtual-pixel tile -fx "p{i+5*sin($deux_pi*j/h)+2*sin($deux_pi*3*j/h+2),j}" \
    "$travail/fil.miff"
bruit pores 82 -morphology Convolve 'Blur:0x9,90' -morphology Convolve 'Blur:0x0.5,0'
bruit nuages 83 -blur 0x34
meler bois .5 fil .28 pores .22 nuages
teindre bois Bois '#E2CBA4' '#F6E8CF'

# Screen: the dots of a printed page, hardly thicker here and thinner there.
motif points "u=0.5+0.5*cos($deux_pi*i/12)*cos($deux_pi*j/12)"
bruit nuages 91 -blur 0x30
meler trame .86 points .14 nuages
convert "$travail/trame.miff" -sigmoidal-contrast 14,38% "$travail/trame.miff"
teindre trame Trame '#E2E7EE' '#FAF7F0'

# Diluted ink: a wash that has run into wet paper.
bruit lavis 109 -blur 0x34
bruit franges 103 -blur 0x11
bruit fibres 104 -blur 0x3
bruit grain 102 -blur 0x0.9
meler encre .52 lavis .26 franges .12 fibres .1 grain
teindre encre Encre '#D0DDEA' '#FAF8F2'
