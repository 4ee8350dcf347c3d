// The pictures of the four libraries, each with its folder, name and size.
import { balloon, bunting, colours as c, confetti, darker, dice, flower, heart, leaf, lighter, sprig, star, times } from './tekenen.mjs';

const warm = [c.terracotta, c.ochre, c.sage, c.blue, c.plum];
const sheet = (width, height, fill) => `<rect width="${width}" height="${height}" fill="${fill}"/>`;
const script = (x, y, size, fill, text) =>
  `<text x="${x}" y="${y}" font-family="Z003" font-size="${size}" fill="${fill}" text-anchor="middle">${text}</text>`;
const small = (x, y, text, anchor = 'start', size = 15) =>
  `<text x="${x}" y="${y}" font-family="Liberation Serif" font-style="italic" font-size="${size}" fill="${c.ink}" text-anchor="${anchor}">${text}</text>`;
const dotted = (x0, y, x1) =>
  `<path d="M${x0} ${y}H${x1}" stroke="${c.ink}" stroke-opacity=".6" stroke-width="1.4" stroke-dasharray="0.1 5" stroke-linecap="round"/>`;
const berries = (x, y, fill) => [[0, 0], [9, 5], [3, 11]].map(([dx, dy]) =>
  `<circle cx="${x + dx}" cy="${y + dy}" r="4.6" fill="${fill}"/><circle cx="${x + dx - 1.3}" cy="${y + dy - 1.5}" r="1.3" fill="#fff" opacity=".7"/>`).join('');

/** A bouquet that fills a corner at (0, 0) and runs out along both sides. */
const bouquet = () => sprig([[60, 60], [150, 26], [252, 40]], 12, 34, c.sage) + sprig([[60, 60], [24, 170], [40, 300]], 13, 34, c.sage) +
  sprig([[50, 70], [120, 90], [168, 84]], 7, 30, c.green) + sprig([[70, 50], [94, 130], [86, 196]], 8, 30, c.green) +
  sprig([[40, 40], [120, 6], [206, 12]], 8, 26, '#c2b27c') + sprig([[40, 40], [4, 120], [12, 218]], 8, 26, '#c2b27c') +
  berries(158, 54, c.terracotta) + berries(52, 184, c.terracotta) + berries(206, 26, c.plum) + berries(22, 246, c.plum) +
  flower(62, 62, 50, c.terracotta, 9) + flower(126, 42, 32, c.blush, 7) + flower(40, 134, 34, c.ochre, 8, c.terracotta) +
  flower(104, 100, 24, c.plum, 6) + flower(168, 28, 18, c.ochre, 6, c.terracotta) + flower(24, 186, 19, c.blush, 6);

function bloemen() {
  const corner = bouquet();
  return sheet(440, 640, c.paper) +
    `<rect x="20" y="20" width="400" height="600" rx="10" fill="#fffdf7" stroke="${c.ochre}" stroke-width="3"/>` +
    `<rect x="28" y="28" width="384" height="584" rx="6" fill="none" stroke="${c.terracotta}" stroke-opacity=".55"/>` +
    corner + `<g transform="rotate(180 220 320)">${corner}</g>`;
}

function feest() {
  const free = (x, y) => x > 46 && x < 594 && y > 54 && y < 396;
  return sheet(640, 440, '#fbead0') + times(16, (i) => `<path d="M320 220L${320 + 700 * Math.cos(i * Math.PI / 8)} ${220 + 700 * Math.sin(i * Math.PI / 8)}L${320 + 700 * Math.cos((i + 0.5) * Math.PI / 8)} ${220 + 700 * Math.sin((i + 0.5) * Math.PI / 8)}Z" fill="#f8ddb4"/>`).join('') +
    `<rect x="56" y="64" width="528" height="322" rx="26" fill="#fffdf7" stroke="${c.terracotta}" stroke-width="4"/><rect x="65" y="73" width="510" height="304" rx="19" fill="none" stroke="${c.ochre}" stroke-width="1.6" stroke-dasharray="6 5"/>` +
    confetti(7, 420, 640, 440, warm, free) + bunting(-10, 14, 330, 14, 22, 9, warm) + bunting(310, 14, 650, 14, 22, 9, [...warm].reverse()) +
    balloon(44, 268, 36, c.terracotta, 60, 432) + balloon(96, 320, 30, c.ochre, 66, 436) + balloon(22, 342, 28, c.blue, 56, 440) +
    balloon(598, 262, 36, c.plum, 580, 432) + balloon(544, 322, 30, c.sage, 574, 436) + balloon(620, 340, 28, c.ochre, 584, 440);
}

function winter() {
  const roll = dice(11);
  const flakes = times(700, () => `<circle cx="${(roll() * 440).toFixed(1)}" cy="${(roll() * 640).toFixed(1)}" r="${(0.8 + roll() * 2).toFixed(1)}" fill="#fff" opacity="${(0.3 + roll() * 0.5).toFixed(2)}"/>`).join('');
  const corner = sprig([[50, 50], [130, 24], [216, 30]], 13, 30, '#6f9a78') + sprig([[50, 50], [24, 130], [30, 226]], 13, 30, '#6f9a78') +
    sprig([[56, 56], [100, 84], [140, 76]], 7, 26, '#8db491') + sprig([[56, 56], [84, 100], [76, 146]], 7, 26, '#8db491') +
    [[0, -13], [12, 7], [-12, 7]].map(([x, y]) => `<circle cx="${54 + x}" cy="${54 + y}" r="12" fill="#c8402f" stroke="#8c2419"/><circle cx="${50 + x}" cy="${50 + y}" r="3.4" fill="#fff" opacity=".7"/>`).join('') +
    berries(138, 36, '#c8402f') + berries(34, 140, '#c8402f') + star(104, 52, 13, '#f0cf7a') + star(50, 108, 13, '#f0cf7a');
  return sheet(440, 640, '#2f5a4a') + flakes +
    '<rect x="34" y="34" width="372" height="572" rx="14" fill="#fffaf0" stroke="#f0cf7a" stroke-width="4"/><rect x="43" y="43" width="354" height="554" rx="9" fill="none" stroke="#c8402f" stroke-opacity=".6"/>' +
    corner + `<g transform="translate(440 640) rotate(180)">${corner}</g>`;
}

const candle = (x, y, fill) => `<rect x="${x - 5}" y="${y}" width="10" height="36" rx="2" fill="${fill}"/><path d="M${x - 5} ${y + 12}L${x + 5} ${y + 6}M${x - 5} ${y + 24}L${x + 5} ${y + 18}" stroke="#fff" stroke-width="3"/>` +
  `<path d="M${x} ${y - 20}C${x + 10} ${y - 8} ${x + 6} ${y} ${x} ${y}C${x - 6} ${y} ${x - 10} ${y - 8} ${x} ${y - 20}Z" fill="${c.ochre}"/><path d="M${x} ${y - 11}C${x + 5} ${y - 5} ${x + 3} ${y - 1} ${x} ${y - 1}C${x - 3} ${y - 1} ${x - 5} ${y - 5} ${x} ${y - 11}Z" fill="#fff6d8"/>`;
const icing = (x, y, width, fill) => `<path d="M${x} ${y}H${x + width}V${y + 14}${times(width / 24, (i) => `q-4 ${14 + (i % 2) * 8} -12 ${10}t-12 -10`).join('')}Z" fill="${fill}"/>`;
const tier = (x, y, width, height, fill, top) => `<rect x="${x}" y="${y}" width="${width}" height="${height}" rx="8" fill="${fill}"/>` +
  `<rect x="${x}" y="${y + height - 14}" width="${width}" height="6" fill="${darker(fill)}" opacity=".25"/>${icing(x, y, width, top)}`;

function taart() {
  const free = (x, y) => x > 30 && x < 410 && y > 96 && y < 610;
  return sheet(440, 640, '#fdf1dc') + '<ellipse cx="220" cy="350" rx="250" ry="290" fill="#fff9ec"/>' + confetti(23, 170, 440, 640, warm, free) +
    bunting(-12, 10, 225, 22, 24, 6, warm, 40) + bunting(215, 22, 452, 10, 24, 6, [...warm].reverse(), 40) +
    script(220, 150, 62, c.terracotta, 'Hartelijk') + script(220, 206, 58, c.terracotta, 'gefeliciteerd!') +
    sprig([[206, 232], [160, 240], [112, 226]], 7, 17, c.sage) + sprig([[234, 232], [280, 240], [328, 226]], 7, 17, c.sage) + heart(220, 238, 0.8, c.terracotta) +
    [172, 204, 236, 268].map((x, i) => candle(x, 274, warm[(i + 1) % 5])).join('') +
    tier(136, 308, 168, 58, '#f7d795', c.terracotta) + tier(100, 362, 240, 70, c.terracotta, c.blush) +
    times(6, (i) => `<circle cx="${124 + i * 38.4}" cy="410" r="5.5" fill="${lighter(c.ochre)}"/>`).join('') + times(4, (i) => heart(166 + i * 36, 351, 0.5, c.plum)).join('') +
    `<ellipse cx="220" cy="436" rx="150" ry="10" fill="${c.blue}"/><ellipse cx="220" cy="433" rx="150" ry="9" fill="${lighter(c.blue)}"/><path d="M180 440H260L250 462H190Z" fill="${c.blue}"/><ellipse cx="220" cy="463" rx="52" ry="6" fill="${c.blue}"/>` +
    [510, 548, 586].map((y) => dotted(74, y, 366)).join('');
}

function uitnodiging() {
  const spray = sprig([[0, 0], [70, -30], [150, -22]], 10, 28, c.sage) + sprig([[0, 0], [40, 60], [30, 142]], 10, 28, c.sage) + sprig([[4, 6], [60, 30], [104, 26]], 6, 24, c.green) +
    flower(22, 14, 34, c.plum, 8) + flower(70, -2, 21, c.ochre, 7, c.terracotta) + flower(26, 66, 23, c.blush, 7);
  const rows = [['Wie?', 222], ['Wanneer?', 262], ['Hoe laat?', 302], ['Waar?', 342]];
  return sheet(640, 440, c.paper) + `<rect x="16" y="16" width="608" height="408" rx="12" fill="#fffdf7" stroke="${c.sage}" stroke-width="3"/><rect x="23" y="23" width="594" height="394" rx="8" fill="none" stroke="${c.ochre}"/>` +
    `<g transform="translate(34 46)">${spray}</g><g transform="translate(606 394) rotate(180)">${spray}</g>` +
    script(330, 122, 84, c.plum, 'Uitnodiging') + small(330, 158, 'Kom je ook? Wij vieren feest!', 'middle', 18) +
    `<path d="M200 178H310M350 178H460" stroke="${c.ochre}" stroke-width="1.4"/>` + heart(330, 182, 0.6, c.terracotta) +
    rows.map(([word, y]) => small(150, y, word, 'start', 19) + dotted(244, y, 500)).join('') +
    script(320, 396, 32, c.terracotta, 'Tot dan!');
}

function heuvels() {
  const roll = dice(5);
  const hill = (y, swell, fill) => `<path d="M0 ${y}C90 ${y - swell} 150 ${y + swell * 0.6} 240 ${y}S390 ${y - swell * 0.8} 440 ${y - swell * 0.2}V640H0Z" fill="${fill}"/>`;
  const tree = (x, y, s, fill) => `<path d="M${x} ${y}V${y - 14 * s}" stroke="#7d6248" stroke-width="${2.4 * s}"/><ellipse cx="${x}" cy="${y - 24 * s}" rx="${9 * s}" ry="${15 * s}" fill="${fill}"/>`;
  const blooms = times(120, () => {
    const y = 556 + roll() * 84;
    const [x, size] = [roll() * 440, (y - 520) / 24];
    return `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${size.toFixed(1)}" fill="${[c.terracotta, c.ochre, '#fffaf0', c.plum][Math.floor(roll() * 4)]}"/><circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${(size * 0.36).toFixed(1)}" fill="#7a5a36" opacity=".6"/>`;
  }).join('');
  const cloud = (x, y, s) => `<g transform="translate(${x} ${y}) scale(${s})" fill="#fff" opacity=".55"><ellipse cx="0" cy="0" rx="46" ry="12"/><ellipse cx="-14" cy="-9" rx="20" ry="13"/><ellipse cx="14" cy="-12" rx="24" ry="17"/></g>`;
  return '<linearGradient id="lucht" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#a9d0da"/><stop offset=".55" stop-color="#fbe3bf"/><stop offset="1" stop-color="#f6bf98"/></linearGradient>' +
    sheet(440, 640, 'url(#lucht)') + '<circle cx="316" cy="300" r="96" fill="#fff3cf" opacity=".35"/><circle cx="316" cy="300" r="66" fill="#fff3cf" opacity=".5"/><circle cx="316" cy="300" r="42" fill="#fbd98a"/>' +
    cloud(96, 110, 1.2) + cloud(350, 176, 0.9) + cloud(200, 230, 0.7) +
    hill(380, 46, '#b7c7ae') + hill(428, 54, '#9dba94') + tree(72, 412, 0.8, '#86a57e') + tree(92, 416, 1, '#7d9d76') + tree(380, 404, 0.9, '#86a57e') +
    hill(476, 40, '#84a67c') + tree(284, 486, 1.4, '#6a8f66') + tree(308, 484, 1.1, '#73986d') + tree(330, 480, 1.5, '#648a62') + hill(536, 34, '#6f9568') + blooms;
}

function zee() {
  const roll = dice(17);
  const wave = (y, fill, step, height) => `<path d="M${-step} ${y}${times(Math.ceil(640 / step) + 2, () => `q${step / 2} ${-height} ${step} 0`).join('')}V440H${-step}Z" fill="${fill}"/>`;
  const gull = (x, y, s) => `<path d="M${x - 10 * s} ${y - 4 * s}Q${x - 4 * s} ${y - 8 * s} ${x} ${y}Q${x + 4 * s} ${y - 8 * s} ${x + 10 * s} ${y - 4 * s}" fill="none" stroke="${c.ink}" stroke-opacity=".6" stroke-width="1.6"/>`;
  const boat = (x, y, s, sail) => `<g transform="translate(${x} ${y}) scale(${s})"><path d="M-40 0H44L30 18H-28Z" fill="#a65a3d"/><path d="M-36 5H41" stroke="#fff" stroke-width="2.4"/><path d="M0 0V-78" stroke="#6d4a33" stroke-width="3"/><path d="M4 -76Q34 -40 38 -8H4Z" fill="#fffaf0"/><path d="M-4 -70Q-26 -40 -30 -8H-4Z" fill="${sail}"/><path d="M0 -78L16 -73L0 -68Z" fill="${c.terracotta}"/></g>`;
  const shells = times(70, () => `<circle cx="${(roll() * 640).toFixed(1)}" cy="${(392 + roll() * 48).toFixed(1)}" r="${(0.8 + roll() * 1.6).toFixed(1)}" fill="#c9a067" opacity=".6"/>`).join('');
  return '<linearGradient id="hemel" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#8cc3d6"/><stop offset="1" stop-color="#fdf0d8"/></linearGradient>' + sheet(640, 440, 'url(#hemel)') +
    '<circle cx="120" cy="92" r="64" fill="#fff6d6" opacity=".4"/><circle cx="120" cy="92" r="38" fill="#fce09a"/>' + gull(300, 86, 1.2) + gull(342, 110, 0.9) + gull(262, 120, 0.8) + gull(520, 60, 1) +
    '<rect y="262" width="640" height="180" fill="#7fb3c4"/>' + boat(200, 262, 0.5, c.ochre) + wave(276, '#74abbe', 34, 7) + boat(452, 272, 1.15, c.terracotta) + wave(302, '#639eb4', 46, 9) + wave(334, '#5590a8', 58, 10) +
    '<path d="M0 372Q160 348 320 372T640 366V440H0Z" fill="#eef6f3"/><path d="M0 380Q160 356 320 380T640 374V440H0Z" fill="#f0d8a6"/>' + shells + star(80, 412, 13, c.terracotta, 5, -70, 0.45) + star(566, 420, 10, c.ochre, 5, -100, 0.45);
}

function rijstpapier() {
  const roll = dice(29);
  const loose = times(28, (i) => {
    const [x, y, turn] = [(i % 4) * 116 + 30 + roll() * 60, Math.floor(i / 4) * 96 + 20 + roll() * 54, roll() * 360];
    const fill = ['#dfe6cf', '#f5ddd0', '#f7e6c4', '#dbe7ea', '#e9dde8'][i % 5];
    return (i + Math.floor(i / 4)) % 2 ? times(3, (k) => leaf(x, y, 30, turn + (k - 1) * 46, fill)).join('') : `<g opacity=".55">${flower(x, y, 22, ['#f0c5b4', '#f3d59b', '#d5c0d3'][i % 3], 6, '#f6e3b4')}</g>`;
  }).join('');
  const fibres = times(130, () => {
    const [x, y] = [roll() * 440, roll() * 640];
    return `<path d="M${x.toFixed(1)} ${y.toFixed(1)}q${(roll() * 24 - 12).toFixed(1)} ${(roll() * 12 - 6).toFixed(1)} ${(roll() * 40 - 20).toFixed(1)} ${(roll() * 30 - 15).toFixed(1)}" fill="none" stroke="#d9c7a2" stroke-opacity=".5" stroke-width=".8"/>`;
  }).join('');
  return sheet(440, 640, '#fdf8ec') + fibres + loose;
}

/** The outline of bows along an ellipse. */
const scallops = (cx, cy, rx, ry, count, out) => {
  const at = (i, grow) => `${(cx + (rx + grow) * Math.cos((i * 2 * Math.PI) / count)).toFixed(1)} ${(cy + (ry + grow) * Math.sin((i * 2 * Math.PI) / count)).toFixed(1)}`;
  return `M${at(0, 0)}${times(count, (i) => `Q${at(i + 0.5, out)} ${at(i + 1, 0)}`).join('')}Z`;
};

function medaillon() {
  const holes = times(40, (i) => {
    const turn = ((i + 0.5) * Math.PI) / 20;
    return `<circle cx="${(320 + 281 * Math.cos(turn)).toFixed(1)}" cy="${(220 + 181 * Math.sin(turn)).toFixed(1)}" r="5.4" fill="#fff"/>`;
  }).join('');
  const corners = [[44, 40], [596, 40], [44, 400], [596, 400]].map(([x, y]) => flower(x, y, 34, c.plum, 8, c.plum).replace(/fill="#[0-9a-f]+"/g, `fill="${darker(c.plum)}"`)).join('');
  return sheet(640, 440, '#fff') + `<path d="${scallops(320, 220, 280, 180, 40, 44)}" fill="${darker(c.plum)}"/>${holes}<ellipse cx="320" cy="220" rx="268" ry="168" fill="none" stroke="#fff" stroke-width="4"/>${corners}`;
}

function postzegel() {
  const along = (count, length) => times(count + 1, (i) => (i * length) / count);
  const teeth = [...along(24, 600).flatMap((x) => [[20 + x, 20], [20 + x, 420]]), ...along(16, 400).flatMap((y) => [[20, 20 + y], [620, 20 + y]])];
  return sheet(640, 440, '#fff') + `<rect x="20" y="20" width="600" height="400" fill="${darker(c.green)}"/>` +
    teeth.map(([x, y]) => `<circle cx="${x}" cy="${y}" r="8" fill="#fff"/>`).join('') +
    '<rect x="44" y="44" width="552" height="352" fill="none" stroke="#fff" stroke-width="6"/>';
}

const upright = { width: 440, height: 640 };
const lying = { width: 640, height: 440 };
const row = (folder, name, size, drawing) => ({ folder, name, ...size, drawing });

export const pictures = [
  row('Frames', 'Frame-001', upright, bloemen()), row('Frames', 'Frame-002', lying, feest()), row('Frames', 'Frame-003', upright, winter()),
  row('Templates', 'Template-001', upright, taart()), row('Templates', 'Template-002', lying, uitnodiging()),
  row('Achtergronden', 'Achtergrond-001', upright, heuvels()), row('Achtergronden', 'Achtergrond-002', lying, zee()),
  row('Achtergronden', 'Achtergrond-003', upright, rijstpapier()),
  row('Maskers', 'Masker-001', lying, medaillon()), row('Maskers', 'Masker-002', lying, postzegel()),
];
