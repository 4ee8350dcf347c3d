// The cells of the arrow sheet: 24 arrows, 40 flags and 16 pins, each drawn in 100 x 100.
import { colours as c, darker, lighter, star, times } from './tekenen.mjs';

const edge = (colour) => `stroke="${darker(colour)}" stroke-width="2.4" stroke-linejoin="round" stroke-linecap="round"`;

/** A surface lit from above: its gradient and the fill that uses it. */
let lights = 0;
function lit(colour, draw) {
  const id = `licht${++lights}`;
  return `<linearGradient id="${id}" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="${lighter(colour)}"/>` +
    `<stop offset="1" stop-color="${colour}"/></linearGradient>${draw(`fill="url(#${id})" ${edge(colour)}`)}`;
}
const shape = (colour, path, more = '') => lit(colour, (style) => `<path d="${path}" ${style} ${more}/>`);
const about = (angle, inner) => `<g transform="rotate(${angle} 50 50)">${inner}</g>`;
const mirrored = (inner) => `<g transform="translate(100 0) scale(-1 1)">${inner}</g>`;
const pen = (colour, width = 6) =>
  `fill="none" stroke="${colour}" stroke-width="${width}" stroke-linecap="round" stroke-linejoin="round"`;

// Arrows
const block = 'M8 38H54V20L92 50L54 80V62H8Z';
const slim = 'M8 44Q34 48 60 44L56 26L92 50L56 74L60 56Q34 52 8 56Z';
const swoop = 'M10 82C12 44 34 26 62 28L60 12L92 38L62 62L61 46C44 44 30 54 26 84Z';
const bolt = 'M8 64L34 30L48 48L64 30L60 24L92 18L84 50L78 42L48 74L34 54L18 74Z';
const both = 'M6 50L32 24V40H68V24L94 50L68 76V60H32V76Z';
const turnBack = 'M20 88V48C20 4 80 4 80 48V54H94L70 86L46 54H60V48C60 30 40 30 40 48V88Z';
const corner = 'M14 88V46Q14 28 32 28H58V12L92 38L58 64V48H38Q34 48 34 52V88Z';
const crossing = 'M50 6L68 26H57V43H74V32L94 50L74 68V57H57V74H68L50 94L32 74H43V57H26V68L6 50L26 32V43H43V26H32Z';

const blocks = [c.terracotta, c.ochre, c.sage, c.blue].map((colour) =>
  shape(colour, block) + `<path d="M14 43H58" ${pen('#ffffff', 3)} opacity=".55"/>`);
const slims = [c.plum, c.terracotta, c.green, c.ochre].map((colour, i) => about(-90 * i, shape(colour, slim)));
const swoops = [shape(c.sage, swoop), mirrored(shape(c.terracotta, swoop)), shape(c.blue, corner),
  mirrored(shape(c.ochre, corner))];
const odd = [shape(c.plum, bolt), shape(c.green, both), shape(c.terracotta, turnBack), shape(c.blue, crossing)];
const inked = [
  `<path d="M10 66C26 20 62 22 56 50C52 70 30 62 42 44C52 30 70 34 88 46" ${pen(c.ink, 4.5)}/><path d="M72 54L89 47L80 30" ${pen(c.ink, 4.5)}/>`,
  `<path d="M12 78C30 70 34 46 50 46S70 34 84 20" ${pen(c.terracotta, 5)} stroke-dasharray="1 10"/><path d="M66 20L85 19L86 38" ${pen(c.terracotta, 5)}/>`,
  `<path d="M82 34A36 36 0 1 0 86 58" ${pen(c.green, 7)}/><path d="M62 36L84 36L85 14" ${pen(c.green, 7)}/>`,
  `<path d="M12 34L36 50L12 66M36 34L60 50L36 66M60 34L84 50L60 66" ${pen(c.ochre, 9)}/>`,
];
const heart = 'M0 8C-14 -4 -12 -16 -4 -16C-1 -16 0 -13 0 -12C0 -13 1 -16 4 -16C12 -16 14 -4 0 8Z';
const things = [
  shape('#c99a63', 'M12 22H70L90 39L70 56H12Z') + `<path d="M20 34H62M26 44H56" ${pen('#9a6f3f', 2.4)}/>` +
    shape('#a97c4a', 'M40 56H50V94H40Z') + '<circle cx="18" cy="39" r="2" fill="#7d5830"/><circle cx="72" cy="39" r="2" fill="#7d5830"/>',
  `<path d="M12 78L82 26" ${pen('#a97c4a', 4)}/>` + `<g transform="translate(47 54) rotate(-8) scale(1.9)">${shape(c.terracotta, heart)}</g>` +
    shape('#9aa5a8', 'M78 20L94 16L87 32Z') + `<path d="M12 78L8 66M18 73L14 61M12 78L24 80M18 73L30 75" ${pen(c.blue, 3)}/>`,
  `<path d="M6 84C22 70 30 88 44 72" ${pen('#8fa3ab', 3)} stroke-dasharray="1 7"/>` +
    shape('#eef3f4', 'M92 14L30 46L48 56L56 76Z', '') + `<path d="M92 14L48 56L50 78L60 64" fill="#c3d2d8" ${edge('#c3d2d8')}/>`,
  ...[c.plum].map((colour) => shape(colour, 'M6 30H66L60 18L94 42L60 66L66 54H6L18 42Z') +
    `<path d="M26 42H76" ${pen('#ffffff', 2.4)} stroke-dasharray="4 5"/>`),
];

// Flags, drawn in 90 x 60
const box = (x, y, w, h, fill) => `<rect x="${x}" y="${y}" width="${w}" height="${h}" fill="${fill}"/>`;
function stripes(upright, fills, shares = fills.map(() => 1)) {
  const sum = shares.reduce((a, b) => a + b);
  let at = 0;
  return fills.map((fill, i) => {
    const from = at;
    at += shares[i] / sum;
    return upright ? box(90 * from, 0, 90 * (at - from) + 0.2, 60, fill) : box(0, 60 * from, 90, 60 * (at - from) + 0.2, fill);
  }).join('');
}
const lying = (...fills) => stripes(false, fills);
const standing = (...fills) => stripes(true, fills);
const nordic = (ground, outer, inner) => box(0, 0, 90, 60, ground) +
  (inner ? box(25, 0, 16, 60, outer) + box(0, 22, 90, 16, outer) + box(29, 0, 8, 60, inner) + box(0, 26, 90, 8, inner)
    : box(27, 0, 11, 60, outer) + box(0, 24.5, 90, 11, outer));
const union = box(0, 0, 90, 60, '#012169') +
  '<path d="M0 0L90 60M90 0L0 60" stroke="#fff" stroke-width="12"/><path d="M0 0L45 30M90 60L45 30" stroke="#c8102e" stroke-width="4" transform="translate(-1 2)"/>' +
  '<path d="M90 0L45 30M0 60L45 30" stroke="#c8102e" stroke-width="4" transform="translate(-1 -2)"/>' +
  box(0, 20, 90, 20, '#fff') + box(35, 0, 20, 60, '#fff') + box(0, 24, 90, 12, '#c8102e') + box(39, 0, 12, 60, '#c8102e');
const greek = stripes(false, times(9, (i) => (i % 2 ? '#fff' : '#0d5eaf'))) + box(0, 0, 33.3, 33.3, '#0d5eaf') +
  box(13.3, 0, 6.7, 33.3, '#fff') + box(0, 13.3, 33.3, 6.7, '#fff');
const turkish = box(0, 0, 90, 60, '#e30a17') + '<circle cx="32" cy="30" r="15" fill="#fff"/><circle cx="36" cy="30" r="12" fill="#e30a17"/>' +
  star(54, 30, 7.5, '#fff', 5, -90);
const european = box(0, 0, 90, 60, '#003399') +
  times(12, (i) => star(45 + 20 * Math.cos(i * Math.PI / 6), 30 + 20 * Math.sin(i * Math.PI / 6), 3.6, '#ffcc00')).join('');
const american = stripes(false, times(13, (i) => (i % 2 ? '#fff' : '#b22234'))) + box(0, 0, 38, 32.4, '#3c3b6e') +
  times(9, (row) => times(row % 2 ? 5 : 6, (i) => star(3.4 + i * 6.2 + (row % 2) * 3.1, 3.3 + row * 3.2, 1.5, '#fff')).join('')).join('');
const leafSide = [[0, -21], [3.6, -14], [7.4, -16], [5.6, -6], [10.6, -11.4], [12, -8.4], [17.6, -9.6], [15.6, -3.2], [18.6, -1.4], [9.4, 7], [10.6, 11], [1, 9.4], [1.2, 20]];
const canadian = stripes(true, ['#d52b1e', '#fff', '#d52b1e'], [1, 2, 1]) +
  `<path transform="translate(45 31)" fill="#d52b1e" d="M${[...leafSide, ...leafSide.slice(1).reverse().map(([x, y]) => [-x, y])].map((p) => p.join(' ')).join('L')}Z"/>`;
const portuguese = stripes(true, ['#046a38', '#da291c'], [2, 3]) +
  '<circle cx="36" cy="30" r="13" fill="none" stroke="#ffe900" stroke-width="3"/><path d="M27 21H45V32Q45 40 36 41Q27 40 27 32Z" fill="#da291c" stroke="#fff" stroke-width="1"/>' +
  '<path d="M31 25H41V32Q41 36 36 37Q31 36 31 32Z" fill="#fff"/>' +
  [[36, 27.4], [33, 30.4], [36, 30.4], [39, 30.4], [36, 33.6]].map(([x, y]) => `<circle cx="${x}" cy="${y}" r="1.1" fill="#003399"/>`).join('');
const surinamese = stripes(false, ['#377e3f', '#fff', '#b40a2d', '#fff', '#377e3f'], [2, 1, 4, 1, 2]) + star(45, 31, 11, '#ecc81d');
const curacao = stripes(false, ['#002b7f', '#f9e814', '#002b7f'], [5, 1, 2]) + star(14, 10, 5, '#fff') + star(27, 20, 7, '#fff');
const aruban = stripes(false, ['#418fde', '#fbe122', '#418fde', '#fbe122', '#418fde'], [12, 1, 1, 1, 3]) +
  star(18, 16, 12, '#fff', 4, -90, 0.3) + star(18, 16, 9.4, '#d22630', 4, -90, 0.28);
const moroccan = box(0, 0, 90, 60, '#c1272d') +
  `<path d="M${times(5, (i) => `${(45 + 17 * Math.sin(i * 0.8 * Math.PI)).toFixed(2)} ${(31 - 17 * Math.cos(i * 0.8 * Math.PI)).toFixed(2)}`).join('L')}Z" fill="none" stroke="#006233" stroke-width="2.6"/>`;
const southAfrican = box(0, 0, 90, 30, '#e03c31') + box(0, 30, 90, 30, '#001489') +
  '<path d="M0 0L40 30H90M0 60L40 30" fill="none" stroke="#fff" stroke-width="20"/><path d="M-4 -3L40 30L-4 63" fill="#ffb81c" stroke="#ffb81c" stroke-width="14"/>' +
  '<path d="M0 0L40 30H90M0 60L40 30" fill="none" stroke="#007749" stroke-width="12"/><path d="M0 12L24 30L0 48Z" fill="#111" stroke="#ffb81c" stroke-width="4"/><path d="M0 9L28 30L0 51" fill="#111"/>';
const pompeblad = 'M0 6C-8 2 -7 -5 -3 -6C-1 -6.4 0 -5 0 -3C0 -5 1 -6.4 3 -6C7 -5 8 2 0 6Z';
const frisian = `${box(0, 0, 90, 60, '#fff')}<g transform="rotate(-27 45 30)">${[-14, 13, 40].map((y) => box(-30, y + 3, 150, 13.5, '#0e4e9e')).join('')}</g>` +
  [[18, 28], [33, 44], [33, 19], [48, 34], [62, 51], [62, 8], [76, 24]].map(([x, y]) => `<path transform="translate(${x} ${y}) rotate(-27) scale(.8)" d="${pompeblad}" fill="#d8232a"/>`).join('');
const chinese = box(0, 0, 90, 60, '#de2910') + star(15, 15, 9, '#ffde00') +
  [[30, 6], [36, 12], [36, 21], [30, 27]].map(([x, y]) => star(x, y, 3, '#ffde00', 5, 20)).join('');

const flags = [
  lying('#ae1c28', '#fff', '#21468b'), standing('#111', '#fdda24', '#ef3340'),
  lying('#ea141d', '#fff', '#00a1de'), lying('#111', '#d00', '#ffce00'),
  standing('#002654', '#fff', '#ce1126'), union, standing('#169b62', '#fff', '#ff883e'),
  standing('#009246', '#fff', '#ce2b37'),
  stripes(false, ['#aa151b', '#f1bf00', '#aa151b'], [1, 2, 1]), portuguese, lying('#ed2939', '#fff', '#ed2939'),
  box(0, 0, 90, 60, '#da291c') + box(39, 12, 12, 36, '#fff') + box(27, 24, 36, 12, '#fff'),
  nordic('#c8102e', '#fff'), nordic('#ba0c2f', '#fff', '#00205b'), nordic('#006aa7', '#fecc02'), nordic('#fff', '#003580'),
  nordic('#02529c', '#fff', '#dc1e35'), greek, lying('#fff', '#dc143c'),
  lying('#fff', '#d7141a') + '<path d="M0 0L45 30L0 60Z" fill="#11457e"/>',
  lying('#ce2939', '#fff', '#477050'), standing('#002b7f', '#fcd116', '#ce1126'),
  lying('#fff', '#00966e', '#d62612'), lying('#0057b7', '#ffd700'),
  lying('#0072ce', '#111', '#fff'), stripes(false, ['#9e3039', '#fff', '#9e3039'], [2, 1, 2]),
  lying('#fdb913', '#006a44', '#c1272d'), turkish,
  european, american, canadian, box(0, 0, 90, 60, '#fff') + '<circle cx="45" cy="30" r="18" fill="#bc002d"/>',
  lying('#ce1126', '#fff'), surinamese, curacao, aruban,
  moroccan, southAfrican, frisian, chinese,
];

/** A flag on its pole: columns one pixel wide, each set a little higher or lower. */
function waving(flag, number) {
  const [left, top, width, height] = [14, 19, 81, 54];
  const columns = times(width, (x) => {
    const swell = Math.sin((x / width) * 2.1 * Math.PI) * 4.2 * Math.min(1, x / 24);
    const light = Math.cos((x / width) * 2.1 * Math.PI) * Math.min(1, x / 24);
    const shade = light > 0 ? `fill="#fff" opacity="${(light * 0.2).toFixed(3)}"` : `fill="#000" opacity="${(-light * 0.2).toFixed(3)}"`;
    return `<svg x="${left + x}" y="${(top + swell).toFixed(2)}" width="1" height="${height}" viewBox="${(x * 90 / width).toFixed(4)} 0 ${(90 / width).toFixed(4)} 60" preserveAspectRatio="none">` +
      `<use href="#vlag${number}"/><rect width="90" height="60" ${shade}/><path d="M0 .45H90M0 59.55H90" stroke="#3a2f28" stroke-width=".9" opacity=".5"/></svg>`;
  }).join('');
  return `<defs><g id="vlag${number}">${flag}</g></defs><rect x="9.5" y="12" width="4.5" height="84" rx="1.5" fill="#b98a55" stroke="#7d5830"/>` +
    `<circle cx="11.8" cy="11" r="4.4" fill="#eec25c" stroke="#a8802c"/>${columns}<path d="M${left + width} ${(top + Math.sin(2.1 * Math.PI) * 4.2).toFixed(2)}v${height}" stroke="#3a2f28" opacity=".45" stroke-width=".8"/>`;
}

// Pins
const pushPin = (colour) => `<ellipse cx="62" cy="90" rx="18" ry="4" fill="#000" opacity=".14"/>` +
  `<path d="M44 62L34 92" ${pen('#8b969a', 4)}/><g transform="rotate(18 50 46)">${shape(colour, 'M38 16H66L62 40Q74 46 75 60H29Q30 46 42 40Z')}` +
  `${lit(colour, (style) => `<ellipse cx="52" cy="15" rx="17" ry="6.5" ${style}/>`)}<path d="M46 24L44 44" ${pen('#fff', 3.4)} opacity=".55"/></g>`;
const mapPin = (colour, inner) => `<ellipse cx="50" cy="92" rx="17" ry="4.4" fill="#000" opacity=".16"/>` +
  shape(colour, 'M50 92C44 72 20 58 20 36A30 30 0 0 1 80 36C80 58 56 72 50 92Z') + inner;
const head = (colour) => `<ellipse cx="56" cy="58" rx="30" ry="28" fill="#000" opacity=".12"/>` +
  lit(colour, (style) => `<circle cx="50" cy="50" r="30" ${style}/>`) + lit(lighter(colour), (style) => `<circle cx="50" cy="48" r="17" ${style}/>`) +
  `<path d="M40 42Q44 36 52 36" ${pen('#fff', 3)} opacity=".8"/>`;
const clip = (colour) => `<path d="M36 34V70A14 14 0 0 0 64 70V24A10 10 0 0 0 44 24V66A4.5 4.5 0 0 0 54 66V36" ${pen(darker(colour), 6.4)}/>` +
  `<path d="M36 34V70A14 14 0 0 0 64 70V24A10 10 0 0 0 44 24V66A4.5 4.5 0 0 0 54 66V36" ${pen(lighter(colour), 3.2)}/>`;
const tape = (colour) => about(-12, `<path d="M8 36L12 41L8 46L12 51L8 56L12 62H88L92 57L88 52L92 47L88 42L92 36Z" fill="${colour}" opacity=".85" stroke="${darker(colour)}" stroke-opacity=".35"/>` +
  times(6, (i) => `<circle cx="${20 + i * 12}" cy="49" r="3" fill="#fff" opacity=".65"/>`).join(''));
const rosette = (colour) => shape(darker(colour), 'M38 56L26 94L40 86L48 96L54 60ZM62 56L74 94L60 86L52 96L46 60Z') +
  lit(colour, (style) => `<path d="M${times(48, (i) => {
    const r = i % 2 ? 28 : 33;
    return `${(50 + r * Math.cos(i * Math.PI / 24)).toFixed(2)} ${(40 + r * Math.sin(i * Math.PI / 24)).toFixed(2)}`;
  }).join('L')}Z" ${style}/>`) + '<circle cx="50" cy="40" r="19" fill="#fffaf0" stroke="#d9c08a"/>' + star(50, 40, 12, c.ochre);
const peg = (colour) => about(8, shape(colour, 'M36 8H48V92H40Q38 60 36 50Z') + shape(colour, 'M64 8H52V92H60Q62 60 64 50Z') +
  `<path d="M34 42H66M34 47H66" ${pen('#8b969a', 3)}/>`);

const pins = [
  ...[c.terracotta, c.ochre, c.green, c.blue].map(pushPin),
  mapPin(c.terracotta, '<circle cx="50" cy="36" r="12" fill="#fff"/>'),
  mapPin(c.blue, `<path d="M50 22L66 36H61V48H39V36H34Z" fill="#fff"/>`),
  mapPin(c.plum, `<path transform="translate(50 42) scale(1.15)" d="${heart}" fill="#fff"/>`),
  mapPin(c.green, star(50, 37, 16, '#fff')),
  head(c.terracotta), head(c.sage), clip(c.blue), clip(c.terracotta),
  tape(c.blush), rosette(c.terracotta), rosette(c.blue), peg('#d7ab72'),
];

export const cells = [...blocks, ...slims, ...swoops, ...odd, ...inked, ...things, ...flags.map(waving), ...pins];
