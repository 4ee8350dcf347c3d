// The frames: a border around an empty field for the user's own words.
import { balloon, bunting, colours as c, confetti, dice, flower, sprig, star, times, warm, sheet, berries, upright, lying } from './tekenen.mjs';

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

/** In the order of their numbers: size and drawing. */
export const frames = [
  [upright, bloemen()], [lying, feest()], [upright, winter()],
];
